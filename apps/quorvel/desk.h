#pragma once

#include <optional>
#include <string>

#include "quorvel/headless_platform.h"
#include "quorvel/main_menu_ctrl.h"
#include "settings_files/file_parts.h"

namespace quorvel::tool {

using files::ByteSpan;
using files::FileParts;
using files::PartsOf;

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

}  // namespace quorvel::tool
