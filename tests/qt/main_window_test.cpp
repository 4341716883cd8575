#include "muxhost/window/main_window.h"

#include <QMenuBar>
#include <QToolButton>
#include <QTreeWidget>

#include "tests/qt/muxhost_on_screen.h"
#include "tests/qt/on_screen.h"

namespace quorvel::muxhost {
namespace {

class MuxhostWindow : public MuxhostOnScreen {
 protected:
  /// The commands that can be given, by the first letters of their buttons.
  [[nodiscard]] std::string Enabled() {
    std::string letters;
    for (const char* const text : {"Connect", "Download", "Menu", "Zones", "Upload modified",
                                   "Upload all", "Save file", "Restore file", "Defaults"}) {
      if (!Button(text).isEnabled()) continue;
      letters += text[0];
      if (text[0] == 'D') letters += text[1];
      if (text[0] == 'U') letters += text[7];
    }
    return letters;
  }
  void Arm(const char* fault, int at) {
    auto* const heading = window_.findChild<QToolButton*>("LinkHeading");
    if (!heading->isChecked()) heading->click();
    auto* const kind = Find<QComboBox>(&window_, "Fault");
    kind->setCurrentIndex(kind->findText(fault, Qt::MatchStartsWith));
    Find<QSpinBox>(&window_, "Strikes number")->setValue(at);
    Click("Arm");
  }
  [[nodiscard]] bool DeviceIsAsEdited() {
    const auto image = session_.Control().Image();
    const auto device = session_.Device().Bytes();
    return std::equal(image.begin(), image.end(), device.begin(), device.end());
  }
};

TEST_F(MuxhostWindow, TakesBackWhatWasAccepted) {
  const auto steps = [this] {
    QString text;
    for (const QAction* const it : window_.menuBar()->actions().at(1)->menu()->actions()) {
      text += it->text() + (it->isEnabled() ? "; " : " (off); ");
    }
    return text;
  };
  Download();
  EXPECT_EQ(steps(), "&Undo (off); &Redo (off); Re&view changes...; &Find...; ");
  Choose("mnu_CSetup");
  QWidget& editor = *OnScreen("frm_CameraSetup");
  QTest::keyClicks(Find<QLineEdit>(&editor, "m_CameraTitle(2)"), "x");
  QTest::mouseClick(Find<QPushButton>(&editor, "cmd_OK"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] {
    // The menu pops up again.
    if (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
    return steps() == "&Undo \"Camera Setup\"; &Redo (off); Re&view changes...; &Find...; ";
  }));
  window_.menuBar()->actions().at(1)->menu()->actions().front()->trigger();
  EXPECT_EQ(steps(), "&Undo (off); &Redo \"Camera Setup\"; Re&view changes...; &Find...; ");
  EXPECT_TRUE(DeviceIsAsEdited());
  EXPECT_TRUE(session_.Control().ModifiedBlocks().empty());
}

TEST_F(MuxhostWindow, ChangesAreReviewedAndTakenBackBeforeTheyGo) {
  window_.Backups().SetReviewWanted(true);
  Download();
  session_.Control().SetSetting("CamInfo(2).title", "Gate");
  session_.Control().SetSetting("TDInfo.TimeFormat", "12 HOUR");
  session_.Control().SetSetting("MuxLang", "2");
  std::string told;
  const auto review = [&] {
    QWidget* const box = QApplication::activeModalWidget();
    auto* const tree = box == nullptr ? nullptr : Find<QTreeWidget>(box, "Changes");
    if (tree == nullptr || !tree->hasFocus()) return false;
    told.clear();
    for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it) {
      for (int i = 0; i < tree->columnCount(); ++i) told += (*it)->text(i).toStdString() + '|';
      told += '\n';
    }
    if (tree->topLevelItemCount() == 3) {
      QTest::keyClick(tree, Qt::Key_Backspace, Qt::ControlModifier);
      return false;
    }
    QTest::keyClick(tree, Qt::Key_Return);
    return true;
  };
  Click("Upload modified", review);
  EXPECT_EQ(told,
            "Camera Setup||||\nTitle 3|Camera 03|Gate|3|\nIn no editor||||\nMuxLang|0|2|60|\n");
  EXPECT_EQ(session_.Control().ModifiedBlocks(), (std::vector<Byte>{3, 60}));
  QWidget* const editor = OnScreen("frm_CameraSetup");
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->focusWidget()->objectName(), "m_CameraTitle(2)");
}

TEST_F(MuxhostWindow, NewcomerDownloadsEditsUploadsAndSeesItVerified) {
  window_.Backups().SetWanted(true);
  EXPECT_EQ(Enabled(), "CDoRDe");
  EXPECT_EQ(Button("Save file").toolTip(), "Download the device's configuration first");
  EXPECT_EQ(window_.focusWidget(), &Button("Download"));
  EXPECT_TRUE(Button("Download").isDefault());
  Download();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Button("Menu").isDefault(); }));
  EXPECT_EQ(Hint(), "Next: Menu opens the editors, such as those of the cameras.");
  ASSERT_EQ(Enabled(), "CDoMZUaSRDe");
  EXPECT_EQ(Button("Upload modified").toolTip(),
            "No block is listed as modified; Upload all writes everything");

  Choose("mnu_CSetup");
  QWidget& editor = *OnScreen("frm_CameraSetup");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Enabled() == "MS"; }));
  EXPECT_EQ(Button("Defaults").toolTip(), "Close the other windows first");
  auto* const title = Find<QLineEdit>(&editor, "m_CameraTitle(2)");
  title->selectAll();
  QTest::keyClicks(title, "Gate");
  QTest::keyClick(title, Qt::Key_Return, Qt::ControlModifier);
  DismissMenu();
  ASSERT_TRUE(QTest::qWaitFor([this] { return Button("Upload modified").isDefault(); }));
  EXPECT_EQ(Cell(3), "Block 3, changed");
  EXPECT_EQ(Hint(), "1 block modified and not in the device yet. Next: Upload modified.");
  map_.setCurrentIndex(map_.model()->index(2, 0));
  EXPECT_NE(Contents().find("CamInfo(2).title = \"Gate"), std::string::npos) << Contents();
  EXPECT_EQ(Contents().rfind("In the control:\n47 61 74 65 20", 0), 0U) << "the bytes as edited";

  const auto before = session_.Device().Bytes();
  const std::string old(before.begin(), before.end());
  Click(
      "Upload modified", Pressing("START"), [this] { return Cell(3) == "Block 3, sent"; },
      [this] { return session_.LastExchange().end_written && Press("CLOSE"); });
  EXPECT_EQ(session_.LastExchange().blocks_written, std::vector<Byte>{3});
  EXPECT_TRUE(DeviceIsAsEdited());
  EXPECT_EQ(Cell(3), "Block 3, verified");
  EXPECT_EQ(Hint(), "1 block verified: the device holds what was sent.");

  // What the device held is kept.
  ASSERT_EQ(BackupFiles().size(), 1);
  QFile file(BackupFiles().front());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll().toStdString(), old);
  EXPECT_NE(Events().find("Backup of the device: 3600 bytes in " + file.fileName().toStdString()),
            std::string::npos);
}

TEST_F(MuxhostWindow, AnotherDeviceIsConnectedWithTheButton) {
  auto* const model = window_.centralWidget()->findChildren<QComboBox*>().at(0);
  auto* const cameras = window_.centralWidget()->findChildren<QComboBox*>().at(1);
  EXPECT_EQ(model->itemText(14), "14  Triplex NTSC, Matrix");
  EXPECT_EQ(model->count(), 21);
  model->setCurrentIndex(3);
  cameras->setCurrentIndex(1);
  Click("Connect");
  EXPECT_EQ(session_.Device().ModelCode(), 3);
  EXPECT_EQ(session_.Device().IdentityBytes().at(0), 9);
  EXPECT_EQ(session_.Device().BlockCount(), 185);
  EXPECT_FALSE(session_.Device().IsCombined());
  EXPECT_FALSE(Button("Menu").isEnabled());
}

TEST_F(MuxhostWindow, CombinedDeviceIsReadAndWrittenInOnePiece) {
  auto* const macros = Find<QSpinBox>(&window_, "Macro records");
  EXPECT_FALSE(macros->isVisible());
  auto* const exchange = window_.centralWidget()->findChildren<QComboBox*>().at(2);
  exchange->setCurrentText("Combined array");
  EXPECT_TRUE(macros->isVisible());
  macros->setValue(3);
  Find<QSpinBox>(&window_, "Bytes of a macro record")->setValue(20);
  window_.findChild<QDoubleSpinBox*>()->setValue(7.29);
  Click("Connect");
  EXPECT_EQ(session_.Device().Sizes(), (std::vector<Byte>{0, 20, 3, 0, 225, 7, 29}));

  Download();
  EXPECT_EQ(session_.LastExchange().bytes_read, 13U + 225 * 16 + 3 * 20);
  const auto zones = session_.ReadZones(0);
  ChangeZones();
  window_.Backups().SetWanted(true);
  Click(
      "Upload all", [] { return StartSending("Select all data blocks"); },
      [this] { return session_.LastExchange().array_bytes > 0 && Press("CLOSE"); });
  EXPECT_TRUE(session_.LastExchange().read_back->AsSent());
  EXPECT_EQ(session_.Device().ReadBlock(86), std::vector<Byte>(16, 0xA5));
  EXPECT_NE(Events().find("Verified 225 blocks.\n"), std::string::npos);

  ASSERT_EQ(BackupFiles().size(), 1);
  Restore(BackupFiles().front());
  EXPECT_EQ(session_.ReadZones(0), zones);
  EXPECT_EQ(Cell(86), "Block 86, changed");
  EXPECT_TRUE(Button("Upload all").isDefault()) << "a file's blocks are not listed";
}

TEST_F(MuxhostWindow, ReturnGoesOnAfterEachTransfer) {
  window_.centralWidget()->findChildren<QComboBox*>().at(2)->setCurrentText("Combined array");
  Click("Connect");
  session_.Configure({.sync = true});  // the array is there before the receive dialog
  /// Presses Return in a dialog, where it strikes this button.
  const auto press_return = [](const char* name) {
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal == nullptr) return false;
    EXPECT_EQ(modal->focusWidget()->objectName(), name);
    QTest::keyClick(modal->focusWidget(), Qt::Key_Return);
    return true;
  };
  const auto menu_is_next = [this] { return window_.focusWidget() == &Button("Menu"); };
  Click("Download", [&] { return press_return("cmdOK"); });
  EXPECT_TRUE(QTest::qWaitFor(menu_is_next));
  ChangeZones();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Button("Upload modified").isDefault(); }));
  session_.Configure({});
  Click("Upload modified", SendListed,
        [&] { return session_.LastExchange().end_written && press_return("cmdCancel"); });
  EXPECT_TRUE(QTest::qWaitFor(menu_is_next));
}

TEST_F(MuxhostWindow, ADoubleClickOnStartDoesNotStop) {
  Download();
  Arm("silent", 1);
  const auto start = [] {
    QWidget* const dialog = QApplication::activeModalWidget();
    QPushButton* const button = dialog == nullptr ? nullptr : Find(dialog, "START");
    if (button == nullptr) return false;
    const QPoint place = button->mapTo(dialog, button->rect().center());
    QTest::mouseClick(button, Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_TRUE(Find(dialog, "STOP")->isVisible());
    EXPECT_EQ(dialog->childAt(place), button);
    return true;
  };
  Click(
      "Upload all", start, [this] { return session_.LastExchange().unanswered && Press("CLOSE"); },
      Answering("Close"));
}

TEST_F(MuxhostWindow, NamesInTheStatusBarAreNoMarkup) {
  Find<QLineEdit>(&window_, "name")->setText("<b>%2</b>");
  Click("Connect");
  auto* const identity = window_.findChild<QLabel*>("Identity");
  EXPECT_EQ(identity->text().left(10), "<b>%2</b>:");
  EXPECT_EQ(identity->textFormat(), Qt::PlainText);
}

TEST_F(MuxhostWindow, LostBlockIsNamedAndSentAgain) {
  Download();
  ChangeZones();
  Arm("drop", 2);
  EXPECT_NE(Find<QToolButton>(&window_, "Link: armed, drop at 2"), nullptr);
  int starts = 0;
  bool again = false;
  const auto question = [&, answer = Answering("Send again")] {
    const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return false;
    EXPECT_TRUE(box->detailedText().startsWith("CamInfo(0).ActGrid(16): 165 (block 86)\n"))
        << box->detailedText().toStdString();
    EXPECT_EQ(Cell(85) + ", " + Cell(86), "Block 85, verified, Block 86, failed");
    EXPECT_NE(session_.Device().ReadBlock(86), std::vector<Byte>(16, 0xA5));
    again = true;
    return answer();
  };
  const auto send = [&starts] {
    if (SendListed()) ++starts;
    return starts == 2;
  };
  const auto finish = [&] {
    const bool closed = session_.LastExchange().end_written && Press("CLOSE");
    return closed && again;
  };
  Click("Upload modified", question, send, finish);
  EXPECT_EQ(told_, "The device does not hold block 86 as sent.");
  EXPECT_TRUE(DeviceIsAsEdited());
  EXPECT_EQ(Cell(86), "Block 86, verified");
  EXPECT_EQ(Enabled(), "CDoMZUmUaSRDe");
  const std::string events = Events();
  for (const char* const line :
       {"The link fails at number 2: it is lost on the way.\n", "Block 86 is not as sent.\n",
        "The control hands over blocks 85 to 86.\n", "Verified 2 blocks.\n"}) {
    EXPECT_NE(events.find(line), std::string::npos) << line;
  }
}

TEST_F(MuxhostWindow, WindowStaysUsableAfterWhateverTheLinkDoes) {
  struct {
    const char* fault;
    const char* left;     ///< which command that is given, and ends so, leaves enabled
    const char* pressed;  ///< in the dialog that stays, or nothing
    const char* event;
  } const cases[] = {
      {"silent", "CDoRDe", nullptr,
       "The download has not come to its end: the control keeps what it had.\n"},
      {"close", "CDoRDe", "", "Somebody closed the receive dialog.\n"},
      {"duplicate", "CDoMZUaSRDe", "OK", "The link fails at number 3: it comes twice.\n"},
  };
  for (const auto& it : cases) {
    Arm(it.fault, 3);
    const auto act = [&it, this] {
      QWidget* const dialog = QApplication::activeModalWidget();
      if (it.pressed != nullptr) return *it.pressed == '\0' || Press(it.pressed);
      return dialog != nullptr && session_.LastExchange().blocks_read == 2 && dialog->close();
    };
    Click("Download", act);
    EXPECT_EQ(Enabled(), it.left) << it.fault;
    EXPECT_NE(Events().find(it.event), std::string::npos) << it.event;
  }
}

TEST_F(MuxhostWindow, StopIsPressedByTheLink) {
  Download();
  ChangeZones();
  Arm("stop", 1);
  Click("Upload modified", SendListed, [this] {
    return Events().find("Somebody pressed STOP of the send dialog.\n") != std::string::npos &&
           Press("CLOSE");
  });
  EXPECT_EQ(session_.LastExchange().blocks_written, (std::vector<Byte>{85}));
  EXPECT_EQ(Enabled(), "CDoMZUmUaSRDe");
  EXPECT_NE(Events().find("The upload has not come to its end.\n"), std::string::npos);
}

TEST_F(MuxhostWindow, HeadlineTellsWhereTheConfigurationComesFrom) {
  const auto fail_to_download = [this] {
    Arm("close", 3);
    Click("Download");
  };
  fail_to_download();
  ExpectHint(
      "The download has not come to its end: the control holds no configuration. Next: Download.");
  Download();
  ExpectHint("Next: Menu opens the editors, such as those of the cameras.");
  fail_to_download();
  ExpectHint(
      "The download has not come to its end: the control keeps the configuration that it had. "
      "Next: Download.");

  // A file of fewer blocks than the device has.
  auto image = session_.Control().Image();
  image.resize(200 * 16);
  image.at(15) = 200;
  image.at(0) = 'F';
  const QString path = NewFile("short.bin", image);
  Click("Restore file", [] {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    return dialog != nullptr && QMetaObject::invokeMethod(dialog, "reject");
  });
  ExpectHint("No file was restored: the control keeps the configuration that it had.");
  Restore(path);
  EXPECT_TRUE(Hint().startsWith("The control holds a file's configuration: "))
      << Hint().toStdString();
  EXPECT_TRUE(
      Hint().endsWith(" not in the device yet. It has nothing for blocks 201-225 of the device. "
                      "Next: Upload all."));
  Click("Upload all", Answering("Cancel"));
  EXPECT_EQ(told_, "The configuration has nothing for blocks 201-225 of the device.");
  EXPECT_TRUE(session_.LastExchange().sent_blocks.empty());
  session_.Control().Undo();
  ExpectHint("Next: Menu opens the editors, such as those of the cameras.");
}

TEST_F(MuxhostWindow, PortsOfTheLinkAndAnOldClockAreToldBeforeAnUpload) {
  window_.centralWidget()->findChildren<QComboBox*>().at(0)->setCurrentIndex(1);
  Click("Connect");
  Download();
  Choose("mnu_Comm");
  QWidget* const ports = OnScreen("frm_Comm");
  Find<QRadioButton>(ports, "57600")->click();
  Find(ports, "OK")->click();
  DismissMenu();
  Click("Upload modified", Answering("Cancel"));
  EXPECT_EQ(told_, "Ports change that the link may use: port 1 from 9600 baud to 57600 baud.");
  EXPECT_TRUE(session_.LastExchange().sent_blocks.empty());

  // More is chosen in the send dialog.
  Click(
      "Upload modified", Answering("Upload"), [] { return StartSending("Select all data blocks"); },
      Answering("Cancel"), [this] { return told_.contains("clock") && Press("CLOSE"); });
  EXPECT_TRUE(told_.contains("\nThe device's clock goes along: 2000-01-01 00:00:00, "))
      << told_.toStdString();
  EXPECT_TRUE(session_.LastExchange().sent_blocks.empty());

  Click(
      "Upload all", Answering("Upload"), Answering("Use this computer's time"),
      [] { return StartSending("Select all data blocks"); },
      [this] { return session_.LastExchange().end_written && Press("CLOSE"); });
  EXPECT_TRUE(told_.startsWith("The device's clock goes along: 2000-01-01 00:00:00, "))
      << told_.toStdString();
  EXPECT_EQ(session_.Device().ReadBlock(61)->at(5), QDate::currentDate().year() - 2000);
}

TEST_F(MuxhostWindow, KeyboardLockOfTheMenuIsNotToBeUploaded) {
  window_.centralWidget()->findChildren<QComboBox*>().at(0)->setCurrentIndex(3);
  Click("Connect");
  Download();
  Click("Menu");
  DismissMenu();
  EXPECT_EQ(session_.Control().Settings("LockKeyBoard").at(0).value, "1");
  ExpectHint("Next: Menu opens the editors, such as those of the cameras.");
  EXPECT_EQ(Cell(60), "Block 60, untouched");
}

TEST_F(MuxhostWindow, SavedFileBringsBackWhatDefaultsReplaced) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("gate.bin");
  Download();
  ChangeZones();
  // Both ask first, as what was edited is neither in the device nor in a file.
  for (const char* const command : {"Defaults", "Restore file"}) {
    Click(command, Pressing("Cancel"));
    EXPECT_EQ(session_.ReadZones(0), std::vector<Byte>(32, 0xA5)) << command;
  }
  Click("Save file", [&] { return Name(file); });
  ASSERT_EQ(QFileInfo(file).size(), 225 * 16);
  EXPECT_EQ(window_.windowTitle(), "gate.bin[*] - muxhost");
  {
    const WhenShown told(Answering("OK"));
    Click("Defaults");
    ASSERT_TRUE(QTest::qWaitFor([this] { return session_.LastExchange().arrived; }));
  }
  EXPECT_NE(session_.ReadZones(0), std::vector<Byte>(32, 0xA5));
  {
    QTimer discard;  // in case that defaults differ from the device
    QObject::connect(&discard, &QTimer::timeout, [] { Press("Discard"); });
    discard.start(1);
    Restore(file);
  }
  EXPECT_EQ(session_.ReadZones(0), std::vector<Byte>(32, 0xA5));
  EXPECT_EQ(Enabled(), "CDoMZUaSRDe");
}

TEST_F(MuxhostWindow, NothingCanBeEditedUntilTheAnswerIsThere) {
  Download();
  session_.Configure({.comm_id = 1, .latency_ms = 100});
  Click("Download");
  EXPECT_EQ(Enabled(), "");
  auto* const link = Find<QCheckBox>(&window_, "Link to the device is on");
  link->click();
  EXPECT_EQ(Enabled(), "CMZSR");
  EXPECT_EQ(Button("Download").toolTip(), "The link to the device is off");
  link->click();
  const WhenShown told(Pressing("OK"));
  Click("Defaults");
  EXPECT_EQ(Enabled(), "");
  EXPECT_EQ(Hint(), "Waiting for the device.");
  EXPECT_TRUE(QTest::qWaitFor([this] { return session_.LastExchange().arrived; }));
  EXPECT_EQ(Enabled(), "CDoMZUaSRDe");
}

TEST_F(MuxhostWindow, ClosingAsksBeforeChangesAreLost) {
  Download();
  ChangeZones();
  for (const char* const answer : {"Cancel", "Discard"}) {
    const WhenShown question(Pressing(answer));
    window_.close();
    EXPECT_EQ(window_.isVisible(), std::string(answer) == "Cancel");
  }

  window_.show();
  SendModified();
  EXPECT_FALSE(session_.Control().ModifiedBlocks().empty());
  bool asked = false;
  QTimer::singleShot(0, &turns_, [&asked] { asked = Press("Discard"); });
  window_.close();
  EXPECT_FALSE(asked);
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(MuxhostWindow, ClosedInTheMiddleOfATransferItEndsTheTransfer) {
  for (const bool upload : {false, true}) {
    if (upload) {
      Download();
      ChangeZones();
    }
    window_.show();
    Arm("silent", 2);
    const WhenShown send([upload] { return !upload || SendListed(); });
    QStringList answers{"Cancel", "Discard"};
    const WhenShown close([&] {
      const Exchange& exchange = session_.LastExchange();
      if (session_.PendingFault() || (upload ? exchange.sent_blocks.size() : 1U) < 1) return false;
      const QString answer = answers.takeFirst();
      const WhenShown question([answer] { return Press(answer); });
      window_.close();
      EXPECT_EQ(window_.isVisible(), answer == "Cancel");
      return answers.isEmpty();
    });
    Click(upload ? "Upload modified" : "Download");
    EXPECT_FALSE(window_.isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  }
}

}  // namespace
}  // namespace quorvel::muxhost
