#include <QCheckBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>

#include "quorvel/qt_control_surface.h"
#include "tests/qt/on_screen.h"

namespace quorvel {
namespace {

class QtWindows : public OnScreen {
 protected:
  /// Runs `act` once the loop of a modal window runs.
  static void WhileModal(std::function<void()> act) { QTimer::singleShot(0, std::move(act)); }
};

TEST_F(QtWindows, CloseButtonAndKeysWithAndWithoutTheirButtons) {
  const struct {
    bool key_buttons;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* notes;
    bool shown;
  } cases[] = {
      {true, Qt::Key_unknown, {}, "closed; ", false},
      {false, Qt::Key_Escape, {}, "closed; ", false},
      {true, Qt::Key_Enter, Qt::ControlModifier, "button; ", true},
      {false, Qt::Key_Return, Qt::ControlModifier, "", true},
  };
  for (const auto& it : cases) {
    dialog_ = std::make_shared<EveryKind>(platform_);
    if (!it.key_buttons) dialog_->SetKeyButtons(nullptr, nullptr);
    Show();
    if (it.key == Qt::Key_unknown) {
      Window().close();
    } else {
      QTest::keyClick(&Body("text"), it.key, it.modifiers);
    }
    EXPECT_EQ(TakeNotes(), it.notes);
    EXPECT_EQ(dialog_->Shown(), it.shown);
    EXPECT_EQ(platform_.WindowOf(*dialog_) != nullptr, it.shown);
  }
}

TEST_F(QtWindows, ModalDialogReturnsWhenItIsHiddenAndLocksTheOthers) {
  auto behind = std::make_shared<EveryKind>(platform_);
  behind->Show();
  Answer answer_behind = Answer::kDone;
  dialog_->button.on_click = [this] { dialog_->Close(); };
  WhileModal([&] {
    answer_behind = behind->button.Click();
    EXPECT_EQ(QApplication::activeModalWidget(), &Window());
    Click(Body("button"));
  });
  dialog_->ShowModal();
  EXPECT_FALSE(dialog_->Shown());
  EXPECT_EQ(answer_behind, Answer::kDisabled);
  EXPECT_EQ(behind->button.Click(), Answer::kDone);
}

TEST_F(QtWindows, DialogMayGoInItsOwnHandler) {
  dialog_->button.on_click = [this] { dialog_.reset(); };
  Show();
  const QPointer<QWidget> window = &Window();
  Click(Body("button"));
  EXPECT_EQ(dialog_, nullptr);
  Settle();
  EXPECT_EQ(window, nullptr);
}

TEST_F(QtWindows, WindowMayGoInANestedLoopUnderItsHandler) {
  auto inner = std::make_shared<EveryKind>(platform_);
  dialog_->grid.on_press = [&] {
    WhileModal([&] {
      dialog_->Close();
      Settle();
      inner->Close();
    });
    inner->ShowModal();
  };
  Show();
  ClickCell(Body("grid"), 1, 1);
  EXPECT_EQ(platform_.WindowOf(*dialog_), nullptr);
}

TEST_F(QtWindows, LayoutMayBeReplacedWhileItIsOnScreen) {
  Show();
  dialog_->button.on_click = [this] {
    dialog_->SetLayout(Column(dialog_->spare, dialog_->button));
  };
  Click(Body("button"));
  Settle();
  EXPECT_EQ(Window().focusWidget(), &Body("button"));
  EXPECT_TRUE(Body("spare").isVisible());
}

TEST_F(QtWindows, MessageBoxTellsLinesItsKindAndTheAnswer) {
  for (const auto& [button, ok] :
       {std::pair{QMessageBox::Ok, true}, {QMessageBox::Cancel, false}}) {
    QString text;
    auto icon = QMessageBox::NoIcon;
    WhileModal([&text, &icon, pick = button] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      text = box->text();
      icon = box->icon();
      box->button(pick)->click();
    });
    EXPECT_EQ(platform_.Ask({"Send <all>?\rYes & no", "Upload", Message::Buttons::kOkCancel,
                             Message::Kind::kWarning}),
              ok);
    EXPECT_EQ(icon, QMessageBox::Warning);
    EXPECT_EQ(text, "Send <all>?\nYes & no");
  }
}

TEST_F(QtWindows, FileDialogAddsTheExtensionAndTakesNoPatternForAName) {
  const QTemporaryDir folder;
  FileRequest request;
  request.purpose = FileRequest::Purpose::kSave;
  request.filter = "*.bin";
  QStringList seen;
  const auto answer = [&](const char* name) {
    auto* const box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    auto* const edit = box->findChild<QLineEdit*>("fileNameEdit");
    seen << box->windowTitle() + ": " + edit->text();
    edit->setText(folder.filePath(name));
    QMetaObject::invokeMethod(box, "accept");
  };
  request.default_name = request.filter;
  WhileModal([&] {
    WhileModal([&] {
      WhileModal([&] { answer("gate.bin"); });
      QApplication::activeModalWidget()->close();
    });
    answer("g?te.bin");
  });
  EXPECT_EQ(platform_.AskFile(request), folder.filePath("gate.bin").toStdString());
  request.default_extension = "bin";
  request.default_name = "MuxMenuSave.bin";
  WhileModal([&] { answer("lobby"); });
  EXPECT_EQ(platform_.AskFile(request), folder.filePath("lobby.bin").toStdString());
  EXPECT_EQ(seen.first(), "Save As: ");
  EXPECT_EQ(seen.last(), "Save As: MuxMenuSave.bin");
  WhileModal([] { QApplication::activeModalWidget()->close(); });
  EXPECT_EQ(platform_.AskFile(request), std::nullopt);
}

TEST_F(QtWindows, FileDialogShowsTheReadOnlyBoxWhereItIsAskedFor) {
  for (const bool asked : {false, true}) {
    FileRequest request;
    request.read_only_box = asked;
    bool shown = false;
    bool kept_after_untick = true;
    WhileModal([&] {
      auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      auto* const box = dialog->findChild<QCheckBox*>("readOnlyBox");
      shown = box != nullptr && box->isVisible() && box->isChecked() &&
              dialog->testOption(QFileDialog::ReadOnly);
      if (box != nullptr) box->click();
      kept_after_untick = dialog->testOption(QFileDialog::ReadOnly);
      dialog->close();
    });
    EXPECT_EQ(platform_.AskFile(request), std::nullopt);
    EXPECT_EQ(shown, asked);
    EXPECT_FALSE(kept_after_untick);
  }
}

TEST_F(QtWindows, FocusBeginsAtTheFirstInputAndReturnWithoutItPressesTheDefault) {
  Show();
  EXPECT_EQ(Window().focusWidget(), &Body("text"));
  dialog_->Close();
  dialog_->SetLayout(Row(dialog_->button, dialog_->cancel));
  for (Button* const button : {&dialog_->button, &dialog_->cancel}) button->SetEnabled(false);
  Show();
  TakeNotes();
  QTest::keyClick(&Window(), Qt::Key_Return);
  EXPECT_EQ(TakeNotes(), "");
  dialog_->button.SetEnabled(true);
  QTest::keyClick(&Window(), Qt::Key_Return);
  EXPECT_EQ(TakeNotes(), "button; ");
}

TEST_F(QtWindows, FocusGoesToTheDefaultButtonAndToNoneThatNobodyChose) {
  dialog_->SetLayout(Row(dialog_->cancel, dialog_->button, dialog_->spare));
  Show();
  const auto focus = [this] {
    Settle();
    return Window().focusWidget()->objectName().toStdString();
  };
  EXPECT_EQ(focus(), "button");
  dialog_->button.SetEnabled(false);
  EXPECT_EQ(focus(), "frm_EveryKind");
  QTest::keyClick(&Window(), Qt::Key_Return);
  EXPECT_EQ(TakeNotes(), "");
  dialog_->SetKeyButtons(&dialog_->spare, nullptr);
  EXPECT_EQ(focus(), "spare");
  dialog_->spare.SetVisible(false);
  EXPECT_EQ(focus(), "frm_EveryKind");
  dialog_->SetKeyButtons(&dialog_->button, nullptr);
  dialog_->cancel.SetEnabled(false);
  dialog_->button.SetEnabled(true);
  EXPECT_EQ(focus(), "button");
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
  std::string notes;
  surface.on_click = [&] { notes += "click; "; };
  surface.on_double_click = [&] { notes += "double click; "; };
  EXPECT_EQ(widget->sizeHint(), QSize(120, 40));
  widget->show();
  QTest::mouseClick(widget, Qt::LeftButton);
  QTest::mouseDClick(widget, Qt::LeftButton);
  QTest::mouseRelease(widget, Qt::LeftButton);
  surface.SetEnabled(false);
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(notes, "click; double click; ");
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
