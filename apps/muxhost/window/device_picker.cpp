#include "muxhost/window/device_picker.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMetaProperty>
#include <QRegularExpressionValidator>
#include <cmath>

#include "muxhost/window/tr.h"
#include "quorvel/identity.h"

namespace quorvel::muxhost {

namespace {

constexpr int kMostBlocks = 255;
constexpr int kNameLength = 14;
constexpr int kMinorsAMajor = 100;
const QString kExchange = "exchange";

}  // namespace

DevicePicker::DevicePicker(const Platform& platform, QWidget* parent)
    : QGroupBox(Tr("Simulated device"), parent),
      platform_(platform),
      model_(new QComboBox(this)),
      cameras_(new QComboBox(this)),
      blocks_(new QSpinBox(this)),
      variant_(new QLineEdit(this)),
      name_(new QLineEdit(this)),
      exchange_(new QComboBox(this)),
      macros_(new QSpinBox(this)),
      macro_size_(new QSpinBox(this)),
      firmware_(new QDoubleSpinBox(this)),
      macro_row_(MakeMacroRow()),
      form_(new QFormLayout(this)),
      connect_(new QPushButton(Tr("Connect"), this)) {
  const DeviceSetup usual;
  for (int code = 0; !ModelText(code).empty(); ++code) {
    const std::string text(ModelText(code));
    model_->addItem(QString("%1  %2").arg(code).arg(QString::fromStdString(text)), code);
  }
  model_->setCurrentIndex(usual.model);
  for (const int count : {4, 9, 10, 16}) cameras_->addItem(QString::number(count), count);
  cameras_->setCurrentIndex(cameras_->findData(usual.cameras));
  blocks_->setRange(0, kMostBlocks);
  blocks_->setSpecialValueText(Tr("as usual for the model"));
  variant_->setValidator(new QRegularExpressionValidator(QRegularExpression("[!-~]?"), variant_));
  variant_->setObjectName("variant");
  variant_->setPlaceholderText(Tr("as from the factory"));
  name_->setObjectName("name");
  name_->setMaxLength(kNameLength);
  name_->setPlaceholderText(Tr("as from the factory"));
  exchange_->addItem(Tr("Single blocks"), "Single blocks");
  exchange_->addItem(Tr("Combined array"), "Combined array");
  const CombinedSetup usual_combined;
  firmware_->setLocale(QLocale::c());
  firmware_->setRange(0, 255.99);
  firmware_->setSingleStep(0.01);
  firmware_->setValue(usual_combined.firmware_major +
                      static_cast<double>(usual_combined.firmware_minor) / kMinorsAMajor);

  form_->addRow(Tr("Model"), model_);
  form_->addRow(Tr("Cameras"), cameras_);
  form_->addRow(Tr("Blocks"), blocks_);
  form_->addRow(Tr("Variant"), variant_);
  form_->addRow(Tr("Name"), name_);
  form_->addRow(Tr("Exchange"), exchange_);
  form_->addRow(Tr("Macros"), macro_row_);
  form_->addRow(Tr("Firmware"), firmware_);
  form_->addRow(connect_);
  QWidget* const order[] = {exchange_, macros_, macro_size_, firmware_, connect_};
  for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
  ShowCombined();
  QObject::connect(exchange_, &QComboBox::currentIndexChanged, this, [this] { ShowCombined(); });
  QObject::connect(connect_, &QPushButton::clicked, this, [this] { on_connect(); });
}

QWidget* DevicePicker::MakeMacroRow() {
  constexpr int kMostMacros = 255;
  constexpr int kMostBytes = 65535;
  constexpr int kMacros = 16;
  constexpr int kMacroSize = 64;
  macros_->setRange(0, kMostMacros);
  macros_->setValue(kMacros);
  macros_->setAccessibleName(Tr("Macro records"));
  macro_size_->setRange(0, kMostBytes);
  macro_size_->setValue(kMacroSize);
  macro_size_->setSuffix(Tr(" bytes"));
  macro_size_->setAccessibleName(Tr("Bytes of a macro record"));
  auto* const line = new QWidget;
  auto* const row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(macros_);
  row->addWidget(new QLabel("x"));
  row->addWidget(macro_size_, 1);
  return line;
}

void DevicePicker::ShowCombined() {
  const bool combined = exchange_->currentIndex() == 1;
  form_->setRowVisible(macro_row_, combined);
  form_->setRowVisible(firmware_, combined);
}

CombinedSetup DevicePicker::Combined() const {
  const auto version = static_cast<int>(std::lround(firmware_->value() * kMinorsAMajor));
  return {.macros = macros_->value(),
          .macro_size = macro_size_->value(),
          .firmware_major = version / kMinorsAMajor,
          .firmware_minor = version % kMinorsAMajor};
}

DeviceSetup DevicePicker::Setup() const {
  DeviceSetup setup;
  setup.model = model_->currentData().toInt();
  setup.cameras = cameras_->currentData().toInt();
  if (blocks_->value() > 0) setup.blocks = blocks_->value();
  if (!variant_->text().isEmpty()) setup.variant = variant_->text().at(0).toLatin1();
  if (!name_->text().isEmpty()) setup.name = platform_.FromUtf8(name_->text().toStdString());
  if (exchange_->currentIndex() == 1) setup.combined = Combined();
  return setup;
}

void DevicePicker::AskForDefaults() {
  setTitle(Tr("Device"));
  connect_->setText(Tr("New"));
  exchange_->setCurrentIndex(0);
  for (QWidget* const field : {static_cast<QWidget*>(blocks_), static_cast<QWidget*>(exchange_)}) {
    form_->setRowVisible(field, false);
  }
}

std::array<std::pair<const char*, QWidget*>, 8> DevicePicker::Fields() const {
  return {{{"model", model_},
           {"cameras", cameras_},
           {"blocks", blocks_},
           {"variant", variant_},
           {"name", name_},
           {"macros", macros_},
           {"macroSize", macro_size_},
           {"firmware", firmware_}}};
}

QVariantMap DevicePicker::Choice() const {
  // The same in every language.
  QVariantMap choice{{kExchange, exchange_->currentData()}};
  for (const auto& [name, field] : Fields()) {
    choice[name] = field->metaObject()->userProperty().read(field);
  }
  return choice;
}

void DevicePicker::Choose(const QVariantMap& choice) {
  for (const auto& [name, field] : Fields()) {
    if (choice.contains(name)) field->metaObject()->userProperty().write(field, choice[name]);
  }
  const int exchange = exchange_->findData(choice.value(kExchange));
  if (exchange >= 0) exchange_->setCurrentIndex(exchange);
}

void DevicePicker::ChooseDeviceOf(int model, int cameras, const QString& name) {
  const auto choose = [](QComboBox& list, int value) {
    const int place = list.findData(value);
    if (place >= 0) list.setCurrentIndex(place);
  };
  choose(*model_, model);
  choose(*cameras_, cameras);
  name_->setText(name);
}

void DevicePicker::AllowConnect(bool allowed, const QString& tip) {
  connect_->setEnabled(allowed);
  connect_->setToolTip(tip);
}

}  // namespace quorvel::muxhost
