#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::muxhost {

/// The component's texts in a language other than English.
struct Language {
  std::string name;                   ///< in the language itself
  std::map<int, std::string> texts;   ///< by id, UTF-8
  std::vector<std::string> findings;  ///< what was passed over and why, a sentence each
};

/// Reads {"language": "Deutsch", "texts": {"0": "...", ...}}. A text that would break what the
/// English one does is passed over. Findings name the ids of such texts, of texts that are missing,
/// and those that no text has. Throws std::runtime_error when this is no such file.
[[nodiscard]] Language ReadLanguage(std::string_view json);

}  // namespace quorvel::muxhost
