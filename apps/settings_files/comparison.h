#pragma once

#include <optional>
#include <string>
#include <vector>

#include "settings_files/file_parts.h"

namespace quorvel::files {

/// What two configurations hold differently: a setting by its name, or what they say of their
/// device. A value is empty where there is none. All is UTF-8.
struct Difference {
  std::string name;
  std::string from;
  std::string to;
};

/// "AlarmMode: 1 -> 2", "cameras: none -> 16".
[[nodiscard]] std::string InWords(const Difference& difference);

/// What `control`, whose image is that of `parts`, holds otherwise than `before`: what is said of
/// the device first, then the settings in block order. Nothing when the two cannot be compared.
[[nodiscard]] std::optional<std::vector<Difference>> DifferencesFrom(const FileParts& before,
                                                                     const MainMenuCtrl& control,
                                                                     const FileParts& parts);

}  // namespace quorvel::files
