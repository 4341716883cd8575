#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <functional>

#include "apps/muxhost/simulated_device.h"
#include "quorvel/platform.h"

namespace quorvel::muxhost {

/// Where a person says what the simulated device is made like.
class DevicePicker : public QGroupBox {
 public:
  /// `platform` gives the code page of the device's name.
  explicit DevicePicker(const Platform& platform, QWidget* parent = nullptr);

  /// The device was asked for with the button.
  std::function<void()> on_connect;

  [[nodiscard]] DeviceSetup Setup() const;
  /// Whether the button can be pressed, and why not.
  void AllowConnect(bool allowed, const QString& why_not);

 private:
  const Platform& platform_;
  QComboBox* const model_;
  QComboBox* const cameras_;
  QSpinBox* const blocks_;
  QLineEdit* const variant_;
  QLineEdit* const name_;
  QPushButton* const connect_;
};

}  // namespace quorvel::muxhost
