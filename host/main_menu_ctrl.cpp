#include "quorvel/main_menu_ctrl.h"

#include "host/component.h"
#include "host/model_catalogue.h"

namespace quorvel {

MainMenuCtrl::MainMenuCtrl(Platform& platform, MainMenuEvents& host)
    : component_(Component::Create(platform, host)) {}

MainMenuCtrl::~MainMenuCtrl() {
  component_->Call("Terminate", [this] { component_->Terminate(); });
}

void MainMenuCtrl::InitProperties() {
  component_->Call("InitProperties", [&it = *component_] { it.InitProperties(); });
}

void MainMenuCtrl::ReadProperties(const PropertyBag& bag) {
  component_->Call("ReadProperties", [&it = *component_, &bag] { it.ReadProperties(bag); });
}

void MainMenuCtrl::WriteProperties(PropertyBag& bag) const {
  component_->Call("WriteProperties", [&it = *component_, &bag] { it.WriteProperties(bag); });
}

bool MainMenuCtrl::PropertiesChanged() const { return component_->properties_changed; }

std::int32_t MainMenuCtrl::Custom(std::int16_t command, std::int32_t param1, std::int32_t param2) {
  component_->Call("Custom", [&it = *component_, command, param1, param2] {
    it.Custom(command, param1, param2);
  });
  return 0;
}

std::int32_t MainMenuCtrl::CustomWithString(std::int16_t command, std::int32_t /*param1*/,
                                            std::int32_t /*param2*/, std::string_view str) {
  component_->Call("CustomWithString",
                   [&it = *component_, command, str] { it.CustomWithString(command, str); });
  return 0;
}

std::int32_t MainMenuCtrl::SaveConnectedInfo(std::span<const std::uint8_t> data) {
  component_->Call("SaveConnectedInfo",
                   [&it = *component_, data] { SaveConnectedIdentity(it.context.host, data); });
  return 0;
}

std::int32_t MainMenuCtrl::FillComboInfo(std::span<const std::uint8_t> data) {
  component_->Call("FillComboInfo", [&it = *component_, data] { it.FillComboInfo(data); });
  return 0;
}

std::int32_t MainMenuCtrl::FillComboBlk(std::span<const std::uint8_t> data) {
  component_->Call("FillComboBlk", [&it = *component_, data] { it.FillComboBlk(data); });
  return 0;
}

std::int32_t MainMenuCtrl::FillDataBlk(std::span<const std::uint8_t> bdata) {
  component_->Call("FillDataBlk", [&it = *component_, bdata] { it.FillDataBlk(bdata); });
  return 0;
}

std::int32_t MainMenuCtrl::UpdateActGrid(std::span<const std::uint8_t> bdata) {
  component_->Call("UpdateActGrid",
                   [&it = *component_, bdata] { UpdateActivityGrid(it.context.device, bdata); });
  return 0;
}

std::int32_t MainMenuCtrl::TriggerUploadTimer() {
  component_->Call("TriggerUploadTimer", [&it = *component_] { it.TriggerUploadTimer(); });
  return 0;
}

bool MainMenuCtrl::UsePcTime() const { return component_->context.device.UsePcTime; }

void MainMenuCtrl::UsePcTime(bool use) {
  component_->Call("UsePcTime", [&it = *component_, use] { it.UsePcTime(use); });
}

void MainMenuCtrl::Refresh() {
  component_->Call("Refresh", [&it = *component_] { it.surface.Repaint(); });
}

bool MainMenuCtrl::Enabled() const { return component_->surface.Enabled(); }

void MainMenuCtrl::Enabled(bool enabled) {
  component_->Call("Enabled", [&it = *component_, enabled] {
    it.properties_changed = true;
    it.surface.SetEnabled(enabled);
  });
}

quorvel::Font MainMenuCtrl::Font() const { return component_->surface.LabelFont(); }

void MainMenuCtrl::Font(const quorvel::Font& font) {
  component_->Call("Font", [&it = *component_, &font] {
    it.properties_changed = true;
    it.surface.SetFont(font);
  });
}

std::uint8_t MainMenuCtrl::HostCommId() const { return component_->context.host.HostCommId; }

void MainMenuCtrl::HostCommId(std::uint8_t id) {
  component_->context.host.HostCommId = id;
  component_->properties_changed = true;
}

ControlSurface& MainMenuCtrl::Surface() { return component_->surface; }

std::vector<std::uint8_t> MainMenuCtrl::ModifiedBlocks() const {
  const clsBlkSave& list = component_->context.device.env.blocks;
  std::vector<std::uint8_t> numbers;
  for (Byte i = 0; i < list.BlkSavIdx(); ++i) {
    if (list.BlkNumSav(i) != 0) numbers.push_back(list.BlkNumSav(i));
  }
  return numbers;
}

std::vector<SettingLine> MainMenuCtrl::Settings(std::string_view pattern) const {
  std::vector<SettingLine> lines;
  component_->Call("Settings", [&] { lines = component_->Settings(pattern); });
  return lines;
}

std::optional<std::vector<SettingDifference>> MainMenuCtrl::DifferencesFrom(
    std::span<const std::uint8_t> image) const {
  std::optional<std::vector<SettingDifference>> differences;
  component_->Call("DifferencesFrom", [&] { differences = component_->DifferencesFrom(image); });
  return differences;
}

std::vector<std::uint8_t> MainMenuCtrl::Image() const {
  const auto bytes = component_->context.device.BlkImage.Bytes();
  return {bytes.begin(), bytes.end()};
}

std::vector<std::uint8_t> MainMenuCtrl::EditedImage() const {
  std::vector<std::uint8_t> image;
  component_->Call("EditedImage", [&] { image = component_->EditedImage(); });
  return image;
}

std::unique_ptr<MainMenuCtrl> CreateControl(std::string_view class_id, Platform& platform,
                                            MainMenuEvents& host) {
  if (class_id != kMainMenuCtrlClassId) return nullptr;
  auto control = std::make_unique<MainMenuCtrl>(platform, host);
  control->InitProperties();
  return control;
}

}  // namespace quorvel
