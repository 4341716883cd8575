#include "platform/qt/desktop.h"

#include <QApplication>

#include "platform/qt/in_front.h"

namespace quorvel {

QtPlatform::Desktop::~Desktop() {
  for (auto& [dialog, window] : windows_) delete window;
  // Those that still wait for a loop to delete them: after the application's end none comes.
  for (auto& window : retired_) delete window;
}

qt::DialogWindow* QtPlatform::Desktop::Find(const Dialog& dialog) const {
  const auto found = windows_.find(&dialog);
  return found == windows_.end() ? nullptr : found->second.data();
}

QWidget* QtPlatform::Desktop::Host() const {
  return host != nullptr ? host->window() : QApplication::activeWindow();
}

std::optional<QPoint> QtPlatform::Desktop::BelowMenuButton() const {
  if (menu_button == nullptr || !menu_button->isVisible() ||
      menu_button->visibleRegion().isEmpty()) {
    return std::nullopt;
  }
  return menu_button->mapToGlobal(QPoint(0, menu_button->height()));
}

qt::DialogWindow& QtPlatform::Desktop::Open(Dialog& dialog) {
  if (qt::DialogWindow* const window = Find(dialog)) return *window;
  auto* const window = new qt::DialogWindow(dialog);
  windows_[&dialog] = window;
  qt::KeepInFrontOf(*window, Host());
  return *window;
}

void QtPlatform::Desktop::Close(Dialog& dialog) {
  const auto found = windows_.find(&dialog);
  if (found != windows_.end()) {
    const QPointer<qt::DialogWindow> window = found->second;
    windows_.erase(found);
    // A dialog that takes itself off the screen as it is destroyed has lost its controls already.
    if (window != nullptr) window->Retire(!dialog.weak_from_this().expired());
    std::erase_if(retired_, [](const auto& former) { return former == nullptr; });
    retired_.push_back(window);
  }
  for (const Modal& modal : modal_) {
    if (modal.dialog == &dialog) modal.loop->quit();
  }
  std::erase_if(modal_, [&dialog](const Modal& modal) { return modal.dialog == &dialog; });
}

void QtPlatform::Desktop::Wait(Dialog& dialog) {
  QEventLoop loop;
  modal_.push_back({&dialog, &loop});
  loop.exec(QEventLoop::DialogExec);
  std::erase_if(modal_, [&loop](const Modal& modal) { return modal.loop == &loop; });
}

bool QtPlatform::Desktop::Locks(const Dialog& dialog) const {
  return !modal_.empty() && modal_.back().dialog != &dialog;
}

}  // namespace quorvel
