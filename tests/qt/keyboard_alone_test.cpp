#include <QAccessible>
#include <QKeySequence>
#include <QMenuBar>
#include <QTableView>
#include <QTreeWidget>

#include "tests/qt/muxhost_on_screen.h"

namespace quorvel::muxhost {
namespace {

/// One thing that a user without a mouse does: in a window, at a control. `reach` is pressed until
/// the control has the focus; without it, the control must come to have it.
struct Step {
  QString window;  ///< its title; none: a menu
  QString at;      ///< the control's text or name; none: whatever has the focus
  QString reach;
  QStringList keys;                   ///< as "Ctrl+Z"; what begins with a quote is typed
  std::function<void()> before = {};  ///< done before the keys
  std::function<bool()> ready = {};   ///< waits for it
};

class KeyboardAlone : public MuxhostOnScreen {
 protected:
  KeyboardAlone() {
    window_.Backups().SetWanted(true);
    window_.Backups().SetReviewWanted(true);
  }
  /// Does these things in turn, from within whatever loop runs.
  void Do(std::list<Step> steps) {
    steps_ = std::move(steps);
    Proceed();
    EXPECT_TRUE(QTest::qWaitFor([this] { return steps_.empty() && keys_.isEmpty(); }, 60000))
        << Where();
  }
  /// What a screen reader says of a cell.
  static QString Spoken(const QWidget& grid, int row, int column) {
    QAccessibleInterface* const table =
        QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&grid));
    return table->tableInterface()->cellAt(row, column)->text(QAccessible::Name);
  }

 private:
  static QMenu* Popup() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
  /// The control that a key would go to, by its text or its name.
  static QString Focus() {
    if (const QMenu* const menu = Popup()) {
      return menu->activeAction() == nullptr ? "" : menu->activeAction()->text();
    }
    const QWidget* const focus = QApplication::focusWidget();
    if (focus == nullptr) return {};
    const QString text = focus->property("text").toString();
    const bool button = focus->inherits("QAbstractButton");
    if (button) return QString(text).remove('&');
    return focus->objectName().isEmpty() ? focus->accessibleName() : focus->objectName();
  }
  static QString Window() {
    const QWidget* const window = QApplication::activeWindow();
    return window == nullptr || Popup() != nullptr ? "" : window->windowTitle();
  }
  [[nodiscard]] std::string Where() const {
    return steps_.empty() ? ""
                          : (steps_.front().window + " / " + steps_.front().at + ", not " +
                             Window() + " / " + Focus())
                                .toStdString();
  }
  /// The key goes down and does not come up again: the window may be gone by then.
  static void Press(const QString& key) {
    QWindow* const window = QGuiApplication::focusWindow();
    if (key.startsWith('"')) return QTest::keyPress(window, key.at(1).toLatin1());
    const QKeyCombination keys = QKeySequence(key)[0];
    QTest::keyPress(window, keys.key(), keys.keyboardModifiers());
  }
  /// The keys of a step one by one: "\"Gate" is typed letter by letter.
  static QStringList OneByOne(const QStringList& keys) {
    QStringList all;
    for (const QString& key : keys) {
      if (!key.startsWith('"')) all += key;
      for (qsizetype i = 1; key.startsWith('"') && i < key.size(); ++i) all += '"' + key.mid(i, 1);
    }
    return all;
  }
  /// The focus goes back to a window when the one before it has gone, as on a desktop: not before
  /// one that opens in its place has had its turns to take it.
  void ActivateFront() {
    constexpr int kTurns = 50;
    turns_ = QGuiApplication::focusWindow() == nullptr ? turns_ + 1 : 0;
    if (turns_ % kTurns != kTurns - 1) return;
    QWidget* front = QApplication::activeModalWidget();
    for (QWidget* const it : QApplication::topLevelWidgets()) {
      const bool dialog = it->isVisible() && it != &window_ && it->windowType() == Qt::Window;
      if (front == nullptr && dialog) front = it;
    }
    (front == nullptr ? &window_ : front)->activateWindow();
  }
  /// One key, or none, and on from the event loop: a key may open a window with a loop of its own.
  void Proceed() {
    if (steps_.empty() && keys_.isEmpty()) return;
    QTimer::singleShot(1, &window_, [this] { Proceed(); });
    ActivateFront();
    if (QGuiApplication::focusWindow() == nullptr) return;
    if (!keys_.isEmpty()) return Press(keys_.takeFirst());
    const Step& step = steps_.front();
    const bool in_window = (step.window.isEmpty() && Popup() != nullptr) ||
                           (!step.window.isEmpty() && Window().startsWith(step.window));
    if (!in_window) return;
    if (step.ready && !step.ready()) return;
    if (step.at.isEmpty() || Focus() == step.at) {
      if (step.before) step.before();
      keys_ = OneByOne(step.keys);
      steps_.pop_front();
    } else if (!step.reach.isEmpty()) {
      Press(step.reach);
    }
  }

  std::list<Step> steps_;
  QStringList keys_;  ///< still to be pressed, of the step before
  int turns_ = 0;     ///< of the event loop, in which no window had the focus
};

TEST_F(KeyboardAlone, FromTheFirstKeyToAVerifiedUpload) {
  QString spoken[3];
  const auto listen = [&spoken](int at) {
    return [&spoken, at] {
      spoken[at] = Spoken(*Find<QTableView>(QApplication::activeWindow(), "MSFG_SnlGain"), 1, 1);
    };
  };
  // The window looks from time to time whether the menu has gone.
  const auto can_review = [this] {
    const auto& actions = window_.menuBar()->actions().at(1)->menu()->actions();
    return actions.at(2)->isEnabled();
  };
  const QString receive = "Downloading Data", editor = "Camera Setup", send = "Uploading Data";
  Do({{"muxhost", "Download", {}, {"Return"}},
      {receive, "OK", {}, {"Return"}},
      {"muxhost", "Menu", {}, {"Return"}},
      {{}, "Camera Setup", "Down", {"Return"}},
      {editor, "m_CameraTitle(2)", "Tab", {"\"Gate"}},
      {editor, {}, {}, {"Ctrl+Tab"}},
      {editor, "MSFG_SnlGain", "Tab", {"Down"}},
      {editor, "lstSnlGain", "Tab", {"\"125"}},
      {editor, "MSFG_SnlGain", "Shift+Tab", {"Ctrl+Z"}, listen(0)},
      {editor, "lstSnlGain", {}, {"Ctrl+Y"}, listen(1)},
      {editor, "OK", "Tab", {"Return"}, listen(2)},
      {{}, {}, {}, {"Esc"}},
      {"muxhost", "Upload modified", {}, {"Ctrl+Shift+R"}, {}, can_review},
      {"Review changes", "Changes", {}, {"Esc"}},
      {"muxhost", "Upload modified", {}, {"Return"}},
      {"Before it is sent", "Changes", {}, {"Alt+G"}},
      {send, "START", "Tab", {"Return"}},
      {send, "CLOSE", {}, {"Return"}}});
  EXPECT_EQ(spoken[0], "125. Changed from: 100");
  EXPECT_EQ(spoken[1], "100");
  EXPECT_EQ(spoken[2], "125. Changed from: 100");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Cell(47) == "Block 47, verified"; }));
  EXPECT_EQ(Cell(3), "Block 3, verified");
  EXPECT_NE(Events().find("Verified 2 blocks.\n"), std::string::npos) << Events();
  EXPECT_EQ(BackupFiles().size(), 1);
  const auto title = session_.Device().ReadBlock(3);
  EXPECT_EQ(std::string(title->begin(), title->end()), std::string("Gate         \0\0\0", 16));
  std::vector<Byte> gains(16, 50);
  gains.at(1) = 75;
  EXPECT_EQ(session_.Device().ReadBlock(47), gains);
}

}  // namespace
}  // namespace quorvel::muxhost
