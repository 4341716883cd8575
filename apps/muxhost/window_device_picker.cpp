#include "apps/muxhost/window_device_picker.h"

#include <QFormLayout>
#include <QRegularExpressionValidator>

#include "host/model_catalogue.h"

namespace quorvel::muxhost {

namespace {

constexpr int kMostBlocks = 255;
constexpr int kNameLength = 14;

}  // namespace

DevicePicker::DevicePicker(const Platform& platform, QWidget* parent)
    : QGroupBox("Simulated device", parent),
      platform_(platform),
      model_(new QComboBox(this)),
      cameras_(new QComboBox(this)),
      blocks_(new QSpinBox(this)),
      variant_(new QLineEdit(this)),
      name_(new QLineEdit(this)),
      connect_(new QPushButton("Connect", this)) {
  const DeviceSetup usual;
  for (int code = 0; !ModelText(code).empty(); ++code) {
    const std::string text(ModelText(code));
    model_->addItem(QString("%1  %2").arg(code).arg(QString::fromStdString(text)), code);
  }
  model_->setCurrentIndex(usual.model);
  for (const int count : {4, 9, 10, 16}) cameras_->addItem(QString::number(count), count);
  cameras_->setCurrentIndex(cameras_->findData(usual.cameras));
  blocks_->setRange(0, kMostBlocks);
  blocks_->setSpecialValueText("as usual for the model");
  variant_->setValidator(new QRegularExpressionValidator(QRegularExpression("[!-~]?"), variant_));
  variant_->setPlaceholderText("as from the factory");
  name_->setMaxLength(kNameLength);
  name_->setPlaceholderText("as from the factory");

  auto* const form = new QFormLayout(this);
  form->addRow("Model", model_);
  form->addRow("Cameras", cameras_);
  form->addRow("Blocks", blocks_);
  form->addRow("Variant", variant_);
  form->addRow("Name", name_);
  form->addRow(connect_);
  QObject::connect(connect_, &QPushButton::clicked, this, [this] { on_connect(); });
}

DeviceSetup DevicePicker::Setup() const {
  DeviceSetup setup;
  setup.model = model_->currentData().toInt();
  setup.cameras = cameras_->currentData().toInt();
  if (blocks_->value() > 0) setup.blocks = blocks_->value();
  if (!variant_->text().isEmpty()) setup.variant = variant_->text().at(0).toLatin1();
  if (!name_->text().isEmpty()) setup.name = platform_.FromUtf8(name_->text().toStdString());
  return setup;
}

void DevicePicker::AllowConnect(bool allowed, const QString& why_not) {
  connect_->setEnabled(allowed);
  connect_->setToolTip(allowed ? "Replaces the device by a new one" : why_not);
}

}  // namespace quorvel::muxhost
