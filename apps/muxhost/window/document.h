#pragma once

#include <QString>
#include <vector>

#include "quorvel/byte.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::muxhost {

/// The control's configuration as a document of the user's: the file that it is kept in, and
/// whether it was edited since. What a device has brought is none until it is saved.
class Document {
 public:
  /// The control holds what `path` does; without a path, what begins here as `name`.
  void Begin(const MainMenuCtrl& control, const QString& path, const QString& name);
  /// Another configuration has come, which is none.
  void Forget();

  [[nodiscard]] bool IsOpen() const { return !name_.isEmpty(); }
  /// Empty before it was saved.
  [[nodiscard]] const QString& Path() const { return path_; }
  [[nodiscard]] bool IsUnsaved(const MainMenuCtrl& control) const;
  /// Everything that the control holds is in the file.
  [[nodiscard]] bool IsKept(const MainMenuCtrl& control) const;
  /// "gate.bin"; "TX16 (new)" before it was saved.
  [[nodiscard]] const QString& Name() const { return name_; }

 private:
  QString path_;
  QString name_;
  std::vector<Byte> saved_;  ///< the image as it began, or was saved
};

}  // namespace quorvel::muxhost
