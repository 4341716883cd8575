#include "muxhost/window/device_box.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

DeviceBox::DeviceBox(For purpose, const Platform& platform, QWidget* parent)
    : QDialog(parent), picker_(new DevicePicker(platform, this)) {
  const bool connecting = purpose == For::kConnecting;
  setObjectName("Device");
  setWindowTitle(connecting ? Tr("Connect a device") : Tr("New from factory defaults"));
  if (!connecting) picker_->AskForDefaults();
  picker_->on_connect = [this] { accept(); };
  picker_->AllowConnect(true, {});
  auto* const column = new QVBoxLayout(this);
  column->addWidget(picker_);
  auto* const cancel = new QPushButton(Tr("Cancel"));
  cancel->setAutoDefault(false);
  QObject::connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  column->addWidget(cancel, 0, Qt::AlignRight);
}

std::optional<DeviceSetup> DeviceBox::Ask() {
  if (exec() != Accepted) return std::nullopt;
  return picker_->Setup();
}

}  // namespace quorvel::muxhost
