#include "muxhost/gallery/tour.h"

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <exception>
#include <stdexcept>

#include "muxhost/texts/languages.h"
#include "muxhost/window/review_box.h"
#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

namespace {

/// What opens no window, but acts at once.
bool ActsAtOnce(const std::string& item) {
  constexpr std::array kItems{"mnu_Factory", "mnu_FPanelLock", "mnu_Exit"};
  return std::find(kItems.begin(), kItems.end(), item) != kItems.end();
}

/// The items that open something, in their order.
void AddItems(const MenuItem& menu, std::vector<std::string>& items) {
  for (const MenuItem& item : menu.children) {
    if (!item.visible || !item.enabled || item.separator || ActsAtOnce(item.name)) continue;
    if (item.children.empty()) {
      items.push_back(item.name);
    } else {
      AddItems(item, items);
    }
  }
}

/// Before the window shows the session's control.
HostSession& Speaking(Platform& platform, HostSession& session,
                      const std::shared_ptr<const Language>& language) {
  Speak(platform, session, language);
  return session;
}

}  // namespace

Tour::Tour(Album& album, const TourDevice& device, const std::shared_ptr<const Language>& language)
    : album_(album),
      session_(platform_,
               [this](int milliseconds, std::function<void()> task) {
                 QTimer::singleShot(milliseconds, &turns_, std::move(task));
               }),
      window_(platform_, Speaking(platform_, session_, language)) {
  constexpr int kPatience = 1000;
  QObject::connect(&questions_, &QTimer::timeout, &turns_, [this] { DismissQuestion(); });
  questions_.start(kPatience);
  window_.Backups().SetFolder("Backups");  // the same on every machine that draws the pictures
  window_.show();
  Connect(device);
}

void Tour::Choose(const QString& item, Qt::MatchFlags match) {
  for (QComboBox* const list : window_.findChildren<QComboBox*>()) {
    const int place = list->findText(item, match);
    if (place >= 0) return list->setCurrentIndex(place);
  }
  throw std::runtime_error("no choice of " + item.toStdString());
}

void Tour::Connect(const TourDevice& device) {
  Choose(QString("%1  ").arg(device.model), Qt::MatchStartsWith);
  Choose(QString::number(device.cameras), Qt::MatchExactly);
  auto* const variant = window_.findChild<QLineEdit*>("variant");
  if (variant == nullptr) throw std::runtime_error("no box for the variant");
  variant->setText(device.variant);
  for (QPushButton* const button : window_.findChildren<QPushButton*>()) {
    if (button->text() == Tr("Connect")) button->click();
  }
  if (session_.Device().ModelCode() != device.model) throw std::runtime_error("not connected");
}

void Tour::DismissQuestion() {
  auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr) return;
  album_.Take(*box, "question");
  box->reject();
}

void Tour::TakeHost(const QString& name) {
  constexpr int kWatchInterval = 400;
  QElapsedTimer waited;
  waited.start();
  Album::WaitFor("a moment", [&waited] { return waited.elapsed() > kWatchInterval; });
  album_.Take(window_, "muxhost-" + name);
}

void Tour::Go() {
  TakeHost("1-connected");
  Receive();
  TakeHost("2-received");
  GoThroughMenu();
  TakeChanges();
  constexpr std::size_t kZoneBytes = 32;
  session_.WriteZones(0, std::vector<Byte>(kZoneBytes, 0xA5));
  TakeFind();
  TakeHost("3-changed");
  Send();
  TakeHost("4-sent");
}

void Tour::WithModal(std::function<void(Dialog&)> act, void (HostSession::*command)()) {
  std::exception_ptr failure;
  platform_.at_modal = [&failure, &act](Dialog& dialog) {
    try {
      act(dialog);
    } catch (...) {
      failure = std::current_exception();
    }
    dialog.Close();
  };
  (session_.*command)();
  if (failure) std::rethrow_exception(failure);
}

void Tour::Receive() {
  WithModal(
      [this](Dialog& dialog) {
        QWidget& window = *platform_.WindowOf(dialog);
        const auto& progress = dialog.Find<ProgressBar>("prgBar1");
        const auto& ok = dialog.Find<Button>("cmdOK");
        Album::WaitFor("a part of the data", [&] { return progress.Value() > 60; });
        album_.Take(window, "frm_ULFrMux-1");
        Album::WaitFor("all of the data", [&] { return ok.Enabled(); });
        album_.Take(window, "frm_ULFrMux-2");
      },
      &HostSession::Download);
}

void Tour::Send() {
  WithModal(
      [this](Dialog& dialog) {
        QWidget& window = *platform_.WindowOf(dialog);
        album_.Take(window, "frm_ToMux-1");
        dialog.Find<OptionButton>("optBlk(1)").Click();
        album_.Take(window, "frm_ToMux-2");
        dialog.Find<Button>("cmdOK").Click();
        Album::WaitFor("the end of the send",
                       [this] { return session_.LastExchange().end_written; });
        album_.Take(window, "frm_ToMux-3");
      },
      &HostSession::Upload);
}

void Tour::GoThroughMenu() {
  session_.OpenMenu();
  Album::WaitFor("the menu", [this] { return platform_.menu != nullptr; });
  TakeMenu();
  std::vector<std::string> items;
  AddItems(platform_.menu->Root(), items);
  for (const std::string& item : items) TakeWhatOpens(item);
  QApplication::activePopupWidget()->close();
  platform_.menu->Choose("mnu_Exit");
}

void Tour::TakeMenu() {
  auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
  album_.Take(menu, "menu");
  for (const QAction* const action : menu.actions()) {
    if (action->menu() == nullptr || !action->isVisible()) continue;
    action->menu()->resize(action->menu()->sizeHint());
    album_.Take(*action->menu(), "menu-" + action->objectName());
  }
}

QWidget* Tour::OpenedWindow() const {
  for (QWidget* const it : QApplication::topLevelWidgets()) {
    if (it->isVisible() && it != &window_ && qobject_cast<QMenu*>(it) == nullptr) return it;
  }
  return nullptr;
}

void Tour::TakeChanges() {
  session_.OpenMenu();
  Album::WaitFor("the menu", [] { return QApplication::activePopupWidget() != nullptr; });
  QApplication::activePopupWidget()->close();
  platform_.menu->Choose("mnu_CSetup");
  Album::WaitFor("Camera Setup", [this] { return OpenedWindow() != nullptr; });
  QWidget& window = *OpenedWindow();
  Dialog& dialog = *platform_.DialogIn(window);
  dialog.Find<TextBox>("m_CameraTitle(0)").Type("Lobby");
  dialog.Find<TextBox>("m_CameraTitle(2)").Type("Gate");
  album_.Take(window, "marks-1");
  dialog.Find<TabStrip>("SSTab1").Choose(1);
  auto& gains = dialog.Find<ListBox>("lstSnlGain");
  gains.Choose(gains.Count() / 4);
  album_.Take(window, "marks-2");
  dialog.Find<Button>("cmd_OK").Click();
  Album::WaitFor("the menu", [] { return QApplication::activePopupWidget() != nullptr; });
  QApplication::activePopupWidget()->close();
  platform_.menu->Choose("mnu_Exit");
  ReviewBox box(session_, ReviewBox::Sending{}, &window_);
  box.show();
  album_.Take(box, "review");
}

void Tour::TakeFind() {
  auto& find = *window_.findChild<QDockWidget*>("Find");
  find.show();
  window_.findChild<QLineEdit*>("FindWords")->setText("Lobby");
  TakeHost("find");
  find.hide();
}

void Tour::TakeWhatOpens(const std::string& item) {
  QApplication::activePopupWidget()->close();
  platform_.menu->Choose(item);
  Album::WaitFor(QString::fromStdString(item), [this] { return OpenedWindow() != nullptr; });
  QWidget& window = *OpenedWindow();
  platform_.menu = nullptr;
  if (Dialog* const dialog = platform_.DialogIn(window)) {
    album_.TakePages(window, *dialog);
    dialog->CloseWindow();
  } else {
    album_.Take(window, QString::fromStdString(item));
    window.close();
  }
  Album::Settle();
  if (platform_.menu == nullptr) session_.OpenMenu();  // a window of the host's own
  Album::WaitFor("the menu", [] { return QApplication::activePopupWidget() != nullptr; });
}

}  // namespace quorvel::muxhost
