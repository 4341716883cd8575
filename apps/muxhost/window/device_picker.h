#pragma once

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVariantMap>
#include <array>
#include <functional>
#include <utility>

#include "muxhost/device/simulated_device.h"
#include "quorvel/platform.h"

namespace quorvel::muxhost {

/// Where the user says what the simulated device is made like.
class DevicePicker : public QGroupBox {
 public:
  /// `platform` gives the code page of the device's name.
  explicit DevicePicker(const Platform& platform, QWidget* parent = nullptr);

  /// The device was asked for with the button.
  std::function<void()> on_connect;

  /// As chosen; SimulatedDevice says what of it no device can be.
  [[nodiscard]] DeviceSetup Setup() const;
  /// Asks for the factory defaults of a device, which need no link: what belongs to one is hidden.
  void AskForDefaults();
  /// What is chosen, by the names of the fields, to be kept.
  [[nodiscard]] QVariantMap Choice() const;
  /// Chooses that again. Fields without a value stay; what a list does not have is not chosen.
  void Choose(const QVariantMap& choice);
  /// Chooses what a configuration says of its device.
  void ChooseDeviceOf(int model, int cameras, const QString& name);
  /// Whether the button can be pressed; the tool tip says why not, or what it does.
  void AllowConnect(bool allowed, const QString& tip);

 private:
  [[nodiscard]] QWidget* MakeMacroRow();
  [[nodiscard]] CombinedSetup Combined() const;
  [[nodiscard]] std::array<std::pair<const char*, QWidget*>, 8> Fields() const;
  /// What belongs to the combined exchange takes no space without it.
  void ShowCombined();

  const Platform& platform_;
  QComboBox* const model_;
  QComboBox* const cameras_;
  QSpinBox* const blocks_;
  QLineEdit* const variant_;
  QLineEdit* const name_;
  QComboBox* const exchange_;
  QSpinBox* const macros_;
  QSpinBox* const macro_size_;
  QDoubleSpinBox* const firmware_;
  QWidget* const macro_row_;
  QFormLayout* const form_;
  QPushButton* const connect_;
};

}  // namespace quorvel::muxhost
