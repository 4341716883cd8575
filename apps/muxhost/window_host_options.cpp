#include "apps/muxhost/window_host_options.h"

#include <QFormLayout>

namespace quorvel::muxhost {

HostOptions::HostOptions(const HostSettings& settings, QWidget* parent)
    : QGroupBox("Host", parent),
      settings_(settings),
      link_(new QCheckBox("Has a network link", this)),
      dvr_(new QCheckBox("Captions name a DVR", this)),
      whole_image_(new QCheckBox("Moves the image in one call", this)),
      latency_(new QSpinBox(this)) {
  constexpr int kSlowest = 2000;
  link_->setChecked(settings.link != 0);
  dvr_->setChecked(settings.dvr);
  whole_image_->setChecked(settings.comm_id != 0);
  latency_->setRange(0, kSlowest);
  latency_->setSuffix(" ms a block");
  latency_->setValue(settings.latency_ms);
  auto* const form = new QFormLayout(this);
  form->addRow(link_);
  form->addRow(dvr_);
  form->addRow(whole_image_);
  form->addRow("Link takes", latency_);
  for (QCheckBox* const box : {link_, dvr_, whole_image_}) {
    QObject::connect(box, &QCheckBox::clicked, this, [this] { Tell(); });
  }
  QObject::connect(latency_, &QSpinBox::valueChanged, this, [this] { Tell(); });
}

void HostOptions::Tell() {
  settings_.link = link_->isChecked() ? 1 : 0;
  settings_.dvr = dvr_->isChecked();
  settings_.comm_id = whole_image_->isChecked() ? 1 : 0;
  settings_.latency_ms = latency_->value();
  on_change(settings_);
}

}  // namespace quorvel::muxhost
