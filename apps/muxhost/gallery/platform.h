#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "quorvel/qt_platform.h"
#include "quorvel/widgets.h"

namespace quorvel::muxhost {

/// The platform of the tour: it remembers what comes on screen.
class TourPlatform : public QtPlatform {
 public:
  /// The menu that was popped up last; taking it leaves none until the next pops up.
  std::shared_ptr<PopupMenu> menu;
  /// Called from the loop of the next modal dialog.
  std::function<void(Dialog&)> at_modal;
  /// The dialog on screen whose window this is, or none.
  [[nodiscard]] Dialog* DialogIn(const QWidget& window) const;

  void Show(Dialog& dialog) override;
  void ShowModal(Dialog& dialog) override;
  void Hide(Dialog& dialog) noexcept override;
  void PopUp(std::shared_ptr<PopupMenu> popped_up, int x, int y) override;

 private:
  std::vector<Dialog*> dialogs_;
};

}  // namespace quorvel::muxhost
