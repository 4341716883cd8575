#include "muxhost/gallery/platform.h"

#include <QTimer>
#include <algorithm>
#include <utility>

namespace quorvel::muxhost {

Dialog* TourPlatform::DialogIn(const QWidget& window) const {
  const auto found = std::find_if(dialogs_.begin(), dialogs_.end(),
                                  [&](const Dialog* it) { return WindowOf(*it) == &window; });
  return found == dialogs_.end() ? nullptr : *found;
}

void TourPlatform::Show(Dialog& dialog) {
  dialogs_.push_back(&dialog);
  QtPlatform::Show(dialog);
}

void TourPlatform::ShowModal(Dialog& dialog) {
  QTimer::singleShot(0, [act = std::exchange(at_modal, nullptr), &dialog] {
    if (act) act(dialog);
  });
  QtPlatform::ShowModal(dialog);
}

void TourPlatform::Hide(Dialog& dialog) noexcept {
  std::erase(dialogs_, &dialog);
  QtPlatform::Hide(dialog);
}

void TourPlatform::PopUp(std::shared_ptr<PopupMenu> popped_up, int x, int y) {
  menu = popped_up;
  QtPlatform::PopUp(std::move(popped_up), x, y);
}

}  // namespace quorvel::muxhost
