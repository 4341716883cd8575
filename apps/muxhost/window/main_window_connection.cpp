// How the host's window goes from one device, or file, to another.
#include <stdexcept>

#include "muxhost/window/desktop.h"
#include "muxhost/window/device_box.h"
#include "muxhost/window/main_window.h"
#include "muxhost/window/plain_box.h"
#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"

namespace quorvel::muxhost {

namespace {

const QString kDevice = "device";

}  // namespace

bool MainWindow::MayLoseChanges(const QString& by) {
  blocks_->Update(transfer_runs_, true);
  const bool unsaved = files_->IsUnsaved();
  // Without a device there is none that could lack them, and what a file holds is not lost.
  const bool counts = session_.HasDevice() && !files_->IsKept();
  const auto changed = counts ? blocks_->States().Unwritten().size() : 0;
  QStringList sentences;
  if (unsaved) sentences << Tr("%1 has changes that are not saved.").arg(files_->Opened().Name());
  if (changed > 0) {
    sentences << Tr(changed, "%1 modified block has not been sent to the device.",
                    "%1 modified blocks have not been sent to the device.")
                     .arg(changed);
  }
  // A transfer's dialog locks the window, an editor does not.
  const bool locked = IsLocked();
  const bool others = OthersAreOpen(this);
  if (locked) {
    sentences << Tr("A transfer or a question is still open.");
  } else if (others) {
    sentences << Tr("A window of the menu is open.");
  }
  if (sentences.isEmpty()) return true;
  const QString loss =
      locked ? Tr("%1 breaks it off and loses the changes.") : Tr("%1 loses the changes.");
  sentences << loss.arg(by);
  QMessageBox::StandardButtons buttons = QMessageBox::Discard | QMessageBox::Cancel;
  // What an open window holds would not be in the file.
  const bool saves = !locked && !others && (unsaved || changed > 0);
  if (saves) buttons |= QMessageBox::Save;
  PlainBox box(QMessageBox::Question, sentences.join(' '), buttons, this);
  box.setDefaultButton(saves && unsaved ? QMessageBox::Save : QMessageBox::Cancel);
  const int answer = box.exec();
  return answer == QMessageBox::Save ? files_->Save() : answer == QMessageBox::Discard;
}

void MainWindow::LeaveControl() {
  silence_.End();
  awaits_answer_ = false;
  surface_->Detach();
  delete surface_;
  surface_ = nullptr;
  loaded_ = false;
  asked_.reset();
  missed_.reset();
  blocks_->Forget();
  files_->Opened().Forget();
}

void MainWindow::Connect() {
  const QString connected = Tr("A device is connected to what is open.");
  try {
    SimulatedDevice device(picker_->Setup());
    if (!session_.HasDevice()) {
      const std::string mismatch = session_.ConnectToOpen(device);
      if (mismatch.empty()) return NoteConnected(connected, *picker_);
      if (!MayGoOnWithout(mismatch)) return;
    }
    if (!MayLoseChanges(Tr("Connecting another device"))) return;
    session_.Connect(std::move(device));
    PlaceSurface();
    NoteConnected(Tr("A new device is connected."), *picker_);
  } catch (const std::invalid_argument& error) {
    PlainBox(QMessageBox::Warning, QString::fromStdString(error.what()), QMessageBox::Ok, this)
        .exec();
  }
}

void MainWindow::NoteConnected(const QString& what, const DevicePicker& chosen) {
  log_->Tell(what);
  memory_.SetValue(kDevice, chosen.Choice());
  ShowState();
}

bool MainWindow::MayGoOnWithout(const std::string& mismatch) {
  PlainBox box(QMessageBox::Warning, QString::fromStdString(mismatch), QMessageBox::Cancel, this);
  box.setInformativeText(
      Tr("What is open stays as it is, and without a device. Close it and connect the device "
         "without it?"));
  const auto* const without = box.addButton(Tr("Connect without it"), QMessageBox::AcceptRole);
  box.setDefaultButton(QMessageBox::Cancel);
  box.exec();
  return box.clickedButton() == without;
}

bool MainWindow::AskForDevice() {
  DeviceBox box(DeviceBox::For::kConnecting, platform_, this);
  box.Picker().Choose(picker_->Choice());
  const SimulatedDevice& open = session_.Device();
  box.Picker().ChooseDeviceOf(open.ModelCode(), open.IdentityBytes().at(0),
                              NameOf(open, platform_));
  const auto setup = box.Ask();
  if (!setup) return false;
  std::string trouble;
  try {
    trouble = session_.ConnectToOpen(SimulatedDevice(*setup));
  } catch (const std::invalid_argument& error) {
    trouble = error.what();
  }
  if (!trouble.empty()) {
    PlainBox(QMessageBox::Warning, QString::fromStdString(trouble), QMessageBox::Ok, this).exec();
    return false;
  }
  picker_->Choose(box.Picker().Choice());
  NoteConnected(Tr("A device is connected to what is open."), *picker_);
  return true;
}

void MainWindow::RememberDevice() {
  const QVariantMap choice = memory_.Value(kDevice).toMap();
  if (choice.isEmpty()) return;
  picker_->Choose(choice);
  try {
    session_.Connect(SimulatedDevice(picker_->Setup()));
  } catch (const std::invalid_argument&) {
    // What was kept was changed by other hands: the usual device stays.
  }
}

}  // namespace quorvel::muxhost
