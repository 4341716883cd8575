#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QSpinBox>
#include <functional>

#include "apps/muxhost/host_session.h"

namespace quorvel::muxhost {

/// What the host states to the control.
class HostOptions : public QGroupBox {
 public:
  explicit HostOptions(const HostSettings& settings, QWidget* parent = nullptr);

  /// An option was changed.
  std::function<void(const HostSettings& settings)> on_change;

 private:
  void Tell();

  HostSettings settings_;
  QCheckBox* const link_;
  QCheckBox* const dvr_;
  QCheckBox* const whole_image_;
  QSpinBox* const latency_;
};

}  // namespace quorvel::muxhost
