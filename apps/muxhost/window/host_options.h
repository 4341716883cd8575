#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QSpinBox>
#include <functional>

#include "muxhost/host_session.h"

namespace quorvel::muxhost {

/// What the host states to the control.
class HostOptions : public QGroupBox {
 public:
  explicit HostOptions(const HostSettings& settings, QWidget* parent = nullptr);

  /// An option was changed.
  std::function<void(const HostSettings& settings)> on_change;
  /// The link was switched.
  std::function<void(bool on)> on_link;

  /// Whether the exchange can be changed; the tool tip says why not.
  void AllowExchange(bool allowed, const QString& why_not);

 private:
  void Tell();

  HostSettings settings_;
  QCheckBox* const on_;
  QCheckBox* const link_;
  QCheckBox* const dvr_;
  QComboBox* const exchange_;
  QSpinBox* const latency_;
};

}  // namespace quorvel::muxhost
