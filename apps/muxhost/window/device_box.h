#pragma once

#include <QDialog>
#include <optional>

#include "muxhost/window/device_picker.h"

namespace quorvel::muxhost {

/// Asks for a device: one to connect, or one whose factory defaults are wanted.
class DeviceBox : public QDialog {
 public:
  enum class For { kConnecting, kDefaults };
  DeviceBox(For purpose, const Platform& platform, QWidget* parent);

  /// To be filled in before.
  [[nodiscard]] DevicePicker& Picker() { return *picker_; }
  /// Nothing when the user would rather not.
  [[nodiscard]] std::optional<DeviceSetup> Ask();

 private:
  DevicePicker* const picker_;
};

}  // namespace quorvel::muxhost
