#pragma once

#include <optional>
#include <string>

#include "apps/quorvel/file_parts.h"
#include "quorvel/headless_platform.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::tool {

/// A control without a screen or a device, into which settings files are loaded. Each thread has
/// one of its own.
class Desk {
 public:
  /// Loads a settings file into a new control, as what it is. What is refused is not loaded.
  [[nodiscard]] LoadAnswer Load(ByteSpan file, const FileParts& parts);
  /// The same; throws Trouble when it is refused. `name` is the file's.
  void MustLoad(const std::string& name, ByteSpan file, const FileParts& parts);
  /// A new control, with nothing loaded.
  MainMenuCtrl& NewControl();
  [[nodiscard]] MainMenuCtrl& Control() { return *control_; }

 private:
  HeadlessPlatform platform_;
  MainMenuEvents no_host_;
  std::optional<MainMenuCtrl> control_;
};

/// A sentence of the control as it stands behind a colon: "cut short: it ends at block 3".
[[nodiscard]] std::string AsClause(std::string sentence);

/// What FillComboInfo takes, of the header of a combined array: sizes of macros and blocks, and the
/// firmware version, which the header holds in the same order.
inline constexpr std::size_t kSizesAt = 6;
inline constexpr std::size_t kSizesLength = 7;

}  // namespace quorvel::tool
