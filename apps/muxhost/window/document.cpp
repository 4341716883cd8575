#include "muxhost/window/document.h"

#include <QFileInfo>

namespace quorvel::muxhost {

void Document::Begin(const MainMenuCtrl& control, const QString& path, const QString& name) {
  path_ = path;
  name_ = path.isEmpty() ? name : QFileInfo(path).fileName();
  saved_ = control.EditedImage();
}

void Document::Forget() {
  path_.clear();
  name_.clear();
  saved_.clear();
}

bool Document::IsUnsaved(const MainMenuCtrl& control) const {
  return IsOpen() && control.EditedImage() != saved_;
}

bool Document::IsKept(const MainMenuCtrl& control) const {
  return !path_.isEmpty() && !IsUnsaved(control);
}

}  // namespace quorvel::muxhost
