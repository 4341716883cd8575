#pragma once

#include <QMenu>
#include <QPoint>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "quorvel/widgets/popup_menu.h"

namespace quorvel::qt {

/// The one popup menu that is up, if any, and the choice that was made in it.
class PopupOnScreen {
 public:
  /// `may_choose` is asked when a choice is about to act.
  explicit PopupOnScreen(std::function<bool()> may_choose);
  ~PopupOnScreen() { delete menu_; }
  PopupOnScreen(const PopupOnScreen&) = delete;
  PopupOnScreen& operator=(const PopupOnScreen&) = delete;

  /// Pops a menu up at a place on the screen, over a window, instead of the one that is up.
  void PopUp(std::shared_ptr<PopupMenu> menu, QPoint place, const QWidget* over);
  /// Takes the menu down, and a choice back that has been made in it but has not acted yet.
  void TakeDown(const PopupMenu& menu);

 private:
  void Fill(QMenu& to, const MenuItem& from);
  void Pick(const std::string& name);
  void Act();
  void Close();

  std::function<bool()> may_choose_;
  std::shared_ptr<PopupMenu> model_;
  QPointer<QMenu> menu_;
  std::shared_ptr<PopupMenu> picked_in_;
  std::string picked_;
  QTimer act_soon_;
};

}  // namespace quorvel::qt
