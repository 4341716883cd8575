#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "muxhost/texts/speech.h"

namespace quorvel::muxhost {

/// The texts of the component, and of muxhost's own window, in a language other than English.
struct Language {
  std::string name;                   ///< in the language itself
  std::map<int, std::string> texts;   ///< by id, UTF-8
  std::vector<std::string> findings;  ///< what was passed over and why, a sentence each
  std::string code = {};              ///< of ISO 639, as "de"; may be empty
  std::map<std::string, std::string, std::less<>> window = {};  ///< by the English text
};

/// Reads {"language": "Deutsch", "code": "de", "texts": {"0": "...", ...}, "window": {"English":
/// "...", ...}}; "code" and "window" may be missing. A text that would break what the English one
/// does is passed over. Findings name the ids of such texts, of texts that are missing, and those
/// that no text has. Throws std::runtime_error when this is no such file.
[[nodiscard]] Language ReadLanguage(std::string_view json);

/// What says the texts of the window in a language; in English without one.
[[nodiscard]] Speech SpeechIn(std::shared_ptr<const Language> language);

/// The English texts of the window that a language may translate.
[[nodiscard]] const std::set<std::string, std::less<>>& WindowTexts();

}  // namespace quorvel::muxhost
