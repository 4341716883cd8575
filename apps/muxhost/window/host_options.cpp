#include "muxhost/window/host_options.h"

#include <QFormLayout>

#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

HostOptions::HostOptions(const HostSettings& settings, QWidget* parent)
    : QGroupBox(Tr("Host"), parent),
      settings_(settings),
      on_(new QCheckBox(Tr("Link to the device is on"), this)),
      link_(new QCheckBox(Tr("Has a network link"), this)),
      dvr_(new QCheckBox(Tr("Captions name a DVR"), this)),
      exchange_(new QComboBox(this)),
      latency_(new QSpinBox(this)) {
  constexpr int kSlowest = 2000;
  on_->setChecked(true);
  link_->setChecked(settings.link != 0);
  dvr_->setChecked(settings.dvr);
  exchange_->addItems({Tr("In steps, with dialogs"), Tr("Image in one call")});
  exchange_->setCurrentIndex(settings.comm_id != 0 ? 1 : 0);
  latency_->setRange(0, kSlowest);
  latency_->setSuffix(Tr(" ms a block"));
  latency_->setValue(settings.latency_ms);
  auto* const form = new QFormLayout(this);
  form->addRow(on_);
  form->addRow(link_);
  form->addRow(dvr_);
  form->addRow(Tr("Download"), exchange_);
  form->addRow(Tr("Link takes"), latency_);
  for (QCheckBox* const box : {link_, dvr_}) {
    QObject::connect(box, &QCheckBox::clicked, this, [this] { Tell(); });
  }
  QObject::connect(on_, &QCheckBox::clicked, this, [this](bool on) { on_link(on); });
  QObject::connect(exchange_, &QComboBox::activated, this, [this] { Tell(); });
  AllowExchange(true, {});
  QObject::connect(latency_, &QSpinBox::valueChanged, this, [this] { Tell(); });
}

void HostOptions::Tell() {
  settings_.link = link_->isChecked() ? 1 : 0;
  settings_.dvr = dvr_->isChecked();
  settings_.comm_id = exchange_->currentIndex();
  settings_.latency_ms = latency_->value();
  on_change(settings_);
}

void HostOptions::AllowExchange(bool allowed, const QString& why_not) {
  exchange_->setEnabled(allowed);
  exchange_->setToolTip(allowed ? Tr("How the control is handed the device's image") : why_not);
}

}  // namespace quorvel::muxhost
