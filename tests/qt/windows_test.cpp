#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

#include "quorvel/qt_control_surface.h"
#include "tests/qt/on_screen.h"

namespace quorvel {
namespace {

class QtWindows : public OnScreen {
 protected:
  void ClickOk() { QTest::mouseClick(&Body<QPushButton>("OK"), Qt::LeftButton); }
  /// Runs `act` once the loop of a modal window runs.
  static void WhileModal(std::function<void()> act) { QTimer::singleShot(0, std::move(act)); }
};

TEST_F(QtWindows, CloseButtonEscapeAndCtrlEnter) {
  struct Case {
    bool key_buttons;
    std::function<void(QWidget&)> act;
    Notes notes;
    bool shown;
  };
  const auto key = [](Qt::Key code, Qt::KeyboardModifiers modifiers) {
    return [code, modifiers](QWidget& window) {
      QTest::keyClick(window.findChild<QLineEdit*>(), code, modifiers);
    };
  };
  const Case cases[] = {
      {true, [](QWidget& window) { window.close(); }, {"closed"}, false},
      {true, key(Qt::Key_Escape, {}), {"click Cancel"}, true},
      {false, key(Qt::Key_Escape, {}), {"closed"}, false},
      {true, key(Qt::Key_Return, {}), {}, true},
      {true, key(Qt::Key_Return, Qt::ControlModifier), {"click OK"}, true},
      {true, key(Qt::Key_Enter, Qt::ControlModifier), {"click OK"}, true},
      {false, key(Qt::Key_Return, Qt::ControlModifier), {}, true},
  };
  for (const Case& it : cases) {
    if (!it.key_buttons) dialog_->SetKeyButtons(nullptr, nullptr);
    Show();
    it.act(Window());
    EXPECT_EQ(dialog_->TakeNotes(), it.notes);
    EXPECT_EQ(dialog_->Shown(), it.shown);
    EXPECT_EQ(platform_.WindowOf(*dialog_) != nullptr, it.shown);
    dialog_ = std::make_shared<SampleDialog>(platform_);
  }
}

TEST_F(QtWindows, ModalDialogReturnsWhenItIsHiddenAndLocksTheOthers) {
  auto behind = std::make_shared<SampleDialog>(platform_);
  behind->Show();
  Answer answer_behind = Answer::kDone;
  dialog_->cmd_OK.on_click = [this] { dialog_->Close(); };
  WhileModal([&] {
    answer_behind = behind->cmd_OK.Click();
    EXPECT_EQ(QApplication::activeModalWidget(), &Window());
    ClickOk();
  });
  dialog_->ShowModal();
  EXPECT_FALSE(dialog_->Shown());
  EXPECT_EQ(answer_behind, Answer::kDisabled);
  EXPECT_EQ(behind->cmd_OK.Click(), Answer::kDone);
}

TEST_F(QtWindows, DialogMayGoInItsOwnHandler) {
  dialog_->cmd_OK.on_click = [this] { dialog_.reset(); };
  Show();
  const QPointer<QWidget> window = &Window();
  ClickOk();
  EXPECT_EQ(dialog_, nullptr);
  Settle();
  EXPECT_EQ(window, nullptr);
}

TEST_F(QtWindows, WindowMayGoInANestedLoopUnderItsHandler) {
  auto inner = std::make_shared<SampleDialog>(platform_);
  dialog_->grid.on_press = [&] {
    WhileModal([&] {
      dialog_->Close();
      Settle();
      inner->Close();
    });
    inner->ShowModal();
  };
  dialog_->pages.SetCurrent(1);
  Show();
  auto& table = Body<QTableView>("MSFG_Action");
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                    table.visualRect(table.model()->index(1, 1)).center());
  EXPECT_EQ(platform_.WindowOf(*dialog_), nullptr);
}

TEST_F(QtWindows, DialogIsShownAgainAfterItsWindowWent) {
  Show();
  QTest::keyClicks(&Body<QLineEdit>("m_Title(1)"), "Gate");
  dialog_->Close();
  dialog_->m_Title(2).SetText("Yard");
  Show();
  EXPECT_EQ(Body<QLineEdit>("m_Title(1)").text(), "Gate");
  EXPECT_EQ(Body<QLineEdit>("m_Title(2)").text(), "Yard");
  EXPECT_EQ(Window().findChildren<QTabWidget*>().size(), 1);
}

TEST_F(QtWindows, LayoutMayBeReplacedWhileItIsOnScreen) {
  Show();
  dialog_->cmd_OK.on_click = [this] {
    dialog_->SetLayout(Column(dialog_->m_Title(3), dialog_->cmd_OK));
  };
  ClickOk();
  Settle();
  EXPECT_EQ(Window().focusWidget(), &Body<QPushButton>("OK"));
  EXPECT_TRUE(Body<QLineEdit>("m_Title(3)").isVisible());
  dialog_->m_Title(3).SetText("Roof");
  EXPECT_EQ(Body<QLineEdit>("m_Title(3)").text(), "Roof");
}

TEST_F(QtWindows, WindowFitsItsScreen) {
  dialog_->grid.SetSize(65, 40);
  Show();
  EXPECT_LE(Window().height(), Window().screen()->availableSize().height());
  EXPECT_LE(Window().width(), Window().screen()->availableSize().width());
}

TEST_F(QtWindows, MessageBoxTellsLinesAndTheAnswer) {
  for (const auto& [button, ok] :
       {std::pair{QMessageBox::Ok, true}, {QMessageBox::Cancel, false}}) {
    QString text;
    WhileModal([&text, pick = button] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      text = box->text();
      box->button(pick)->click();
    });
    EXPECT_EQ(platform_.Ask({"Send <all>?\rYes & no", "Upload", Message::Buttons::kOkCancel}), ok);
    EXPECT_EQ(text, "Send <all>?\nYes & no");
  }
}

TEST_F(QtWindows, FileDialogAddsTheExtension) {
  const QTemporaryDir folder;
  FileRequest request;
  request.purpose = FileRequest::Purpose::kSave;
  request.filter = "*.bin";
  request.default_extension = "bin";
  request.default_name = "MuxMenuSave.bin";
  QString name;
  WhileModal([&] {
    auto* const box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    auto* const edit = box->findChild<QLineEdit*>("fileNameEdit");
    name = edit->text();
    edit->setText(folder.filePath("lobby"));
    QMetaObject::invokeMethod(box, "accept");
  });
  EXPECT_EQ(platform_.AskFile(request), folder.filePath("lobby.bin").toStdString());
  EXPECT_EQ(name, "MuxMenuSave.bin");
  WhileModal([] { QApplication::activeModalWidget()->close(); });
  EXPECT_EQ(platform_.AskFile(request), std::nullopt);
}

TEST_F(QtWindows, FileIsNotNamedLikeAPattern) {
  const QTemporaryDir folder;
  FileRequest request;
  request.purpose = FileRequest::Purpose::kSave;
  request.filter = request.default_name = "*.bin";
  QStringList titles;
  QString proposed;
  const auto answer = [&](const char* name) {
    auto* const box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    auto* const edit = box->findChild<QLineEdit*>("fileNameEdit");
    if (titles.isEmpty()) proposed = edit->text();
    titles << box->windowTitle();
    edit->setText(folder.filePath(name));
    QMetaObject::invokeMethod(box, "accept");
  };
  WhileModal([&] {
    WhileModal([&] {
      WhileModal([&] { answer("gate.bin"); });
      QApplication::activeModalWidget()->close();
    });
    answer("g?te.bin");
  });
  EXPECT_EQ(platform_.AskFile(request), folder.filePath("gate.bin").toStdString());
  EXPECT_EQ(proposed, "");
  EXPECT_EQ(titles, QStringList({"Save As", "Save As"}));
}

TEST_F(QtWindows, FocusBeginsAtTheFirstInputAndReturnWithoutItPressesTheDefault) {
  Show();
  EXPECT_EQ(Window().focusWidget(), &Body<QLineEdit>("m_Title(0)"));
  dialog_->Close();
  dialog_->SetLayout(Row(dialog_->cmd_OK, dialog_->cmd_Cancel));
  for (Button* const button : {&dialog_->cmd_OK, &dialog_->cmd_Cancel}) button->SetEnabled(false);
  Show();
  dialog_->TakeNotes();
  QTest::keyClick(&Window(), Qt::Key_Return);
  EXPECT_EQ(dialog_->TakeNotes(), Notes{});
  dialog_->cmd_OK.SetEnabled(true);
  QTest::keyClick(&Window(), Qt::Key_Return);
  EXPECT_EQ(dialog_->TakeNotes(), Notes{"click OK"});
}

TEST_F(QtWindows, TimerTicksUntilATickDestroysIt) {
  int ticks = 0;
  std::unique_ptr<Timer> timer;
  timer = platform_.NewTimer([&] {
    if (++ticks == 3) timer.reset();
  });
  timer->Start();
  timer->SetInterval(1);
  while (timer != nullptr) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  EXPECT_EQ(ticks, 3);
  auto idle = platform_.NewTimer([&] { ++ticks; });
  idle->SetInterval(0);
  idle->Start();
  Settle();
  EXPECT_EQ(ticks, 3);
}

TEST_F(QtWindows, ControlSurfaceTellsClicksAndMayGoInOne) {
  ControlSurface surface;
  surface.SetLabel("Main & menu");
  surface.SetExtent({120, 40});
  auto* const widget = new ControlSurfaceWidget(surface);
  Notes notes;
  surface.on_click = [&] { notes.emplace_back("click"); };
  surface.on_double_click = [&] { notes.emplace_back("double click"); };
  EXPECT_EQ(widget->sizeHint(), QSize(120, 40));
  widget->show();
  QTest::mouseClick(widget, Qt::LeftButton);
  QTest::mouseDClick(widget, Qt::LeftButton);
  QTest::mouseRelease(widget, Qt::LeftButton);
  EXPECT_EQ(notes, (Notes{"click", "double click"}));
  surface.SetEnabled(false);
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(notes.size(), 2U);
  surface.SetEnabled(true);
  surface.on_click = [&] {
    widget->Detach();
    widget->deleteLater();
  };
  QTest::mouseClick(widget, Qt::LeftButton);
  surface.SetLabel("gone");
}

}  // namespace
}  // namespace quorvel
