#include "platform/qt/popup_on_screen.h"

#include <utility>

#include "platform/qt/in_front.h"
#include "platform/qt/texts.h"

namespace quorvel::qt {

PopupOnScreen::PopupOnScreen(std::function<bool()> may_choose)
    : may_choose_(std::move(may_choose)) {
  act_soon_.setSingleShot(true);
  QObject::connect(&act_soon_, &QTimer::timeout, &act_soon_, [this] { Act(); });
}

void PopupOnScreen::PopUp(std::shared_ptr<PopupMenu> menu, QPoint place, const QWidget* over) {
  Close();
  model_ = std::move(menu);
  menu_ = new QMenu;
  Fill(*menu_, model_->Root());
  // The menu hides before it tells what was chosen, so it goes a turn of the loop later.
  QObject::connect(menu_, &QMenu::aboutToHide, menu_, &QObject::deleteLater);
  KeepInFrontOf(*menu_, over);
  menu_->popup(place);
}

void PopupOnScreen::Fill(QMenu& to, const MenuItem& from) {
  for (const MenuItem& item : from.children) {
    if (item.separator || (item.caption.empty() && item.children.empty())) {
      to.addSeparator()->setVisible(item.visible);
      continue;
    }
    QAction* action = nullptr;
    if (item.children.empty()) {
      action = to.addAction(Captioned(item.caption));
      QObject::connect(action, &QAction::triggered, &act_soon_,
                       [this, name = item.name] { Pick(name); });
    } else {
      QMenu* const menu = to.addMenu(Captioned(item.caption));
      Fill(*menu, item);
      action = menu->menuAction();
    }
    action->setObjectName(Shown(item.name));
    action->setVisible(item.visible);
    action->setEnabled(item.enabled);
    action->setCheckable(item.checked);
    action->setChecked(item.checked);
  }
}

void PopupOnScreen::Pick(const std::string& name) {
  picked_in_ = model_;
  picked_ = name;
  // The choice acts from the loop, when the toolkit is done with the menu.
  act_soon_.start();
}

void PopupOnScreen::Act() {
  const auto menu = std::exchange(picked_in_, nullptr);
  if (menu != nullptr && may_choose_()) menu->Choose(std::exchange(picked_, {}));
}

void PopupOnScreen::TakeDown(const PopupMenu& menu) {
  if (model_.get() == &menu) {
    Close();
    model_.reset();
  }
  if (picked_in_.get() == &menu) picked_in_.reset();
}

void PopupOnScreen::Close() {
  if (menu_ == nullptr) return;
  QMenu* const menu = menu_;
  menu_.clear();
  menu->disconnect(&act_soon_);
  menu->close();
  menu->deleteLater();
}

}  // namespace quorvel::qt
