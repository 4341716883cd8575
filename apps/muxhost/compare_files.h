#pragma once

#include <span>
#include <string>
#include <vector>

#include "quorvel/byte.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::muxhost {

/// What came of a comparison.
struct Comparison {
  std::string refusal;             ///< why there was nothing to compare; else empty
  std::vector<std::string> lines;  ///< one for each difference, UTF-8: "AlarmMode: 1 -> 2"
};

/// What a settings file holds otherwise than another one.
[[nodiscard]] Comparison CompareFiles(std::span<const Byte> before, std::span<const Byte> after);

/// What the control holds, with everything that was edited, otherwise than a settings file.
[[nodiscard]] Comparison CompareWithFile(std::span<const Byte> before, const MainMenuCtrl& control);

}  // namespace quorvel::muxhost
