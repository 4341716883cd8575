#pragma once

#include <span>
#include <string_view>

namespace quorvel::muxhost {

/// A file of the folder languages, which is part of the program.
struct BuiltInLanguage {
  std::string_view code;  ///< of ISO 639, as "de"
  std::string_view json;
};

[[nodiscard]] std::span<const BuiltInLanguage> BuiltInLanguages();

}  // namespace quorvel::muxhost
