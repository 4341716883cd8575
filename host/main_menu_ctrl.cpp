#include "quorvel/main_menu_ctrl.h"

#include "core/settings_by_name.h"
#include "host/component.h"
#include "host/send_checks.h"
#include "host/settings_file.h"

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
  component_->Call("SaveConnectedInfo", [&it = *component_, data] { it.SaveConnectedInfo(data); });
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
  component_->Call("UpdateActGrid", [&it = *component_, bdata] { it.UpdateActGrid(bdata); });
  return 0;
}

std::int32_t MainMenuCtrl::TriggerUploadTimer() {
  component_->Call("TriggerUploadTimer", [&it = *component_] { it.TriggerUploadTimer(); });
  return 0;
}

LoadAnswer MainMenuCtrl::LoadSettings(std::span<const std::uint8_t> file) {
  LoadAnswer answer;
  component_->Call("LoadSettings", [&, &it = *component_] { answer = it.LoadSettings(file); });
  return answer;
}

std::vector<std::uint8_t> MainMenuCtrl::SaveSettings() {
  std::vector<std::uint8_t> bytes;
  component_->Call("SaveSettings", [&, &it = *component_] { bytes = SettingsToSave(it.context); });
  return bytes;
}

LoadAnswer MainMenuCtrl::LoadDefaults(std::uint8_t cameras, std::uint8_t model_code,
                                      std::string_view model_name, char variant) {
  LoadAnswer answer;
  component_->Call("LoadDefaults", [&, &it = *component_] {
    answer = it.LoadDefaults(cameras, model_code, model_name, variant);
  });
  return answer;
}

void MainMenuCtrl::Observe(TransferObserver* observer) { component_->Observe(observer); }

bool MainMenuCtrl::StartReceive() {
  bool begun = false;
  component_->Call("StartReceive", [&, &it = *component_] { begun = it.StartReceive(); });
  return begun;
}

bool MainMenuCtrl::StartSend(const SendChoice& choice) {
  bool begun = false;
  component_->Call("StartSend", [&, &it = *component_, choice] { begun = it.StartSend(choice); });
  return begun;
}

void MainMenuCtrl::CancelTransfer() {
  component_->Call("CancelTransfer", [&it = *component_] { it.CancelTransfer(); });
}

std::string MainMenuCtrl::DeviceMismatch() const {
  std::string why;
  component_->Call("DeviceMismatch", [&it = *component_, &why] {
    if (it.context.device.HasImage()) why = WhyDataDoesNotFit(it.context);
  });
  return why;
}

ControlState MainMenuCtrl::State() const { return component_->State(); }

bool MainMenuCtrl::UsePcTime() const { return component_->context.device.UsePcTime; }

void MainMenuCtrl::UsePcTime(bool use) {
  component_->Call("UsePcTime", [&it = *component_, use] { it.UsePcTime(use); });
}

bool MainMenuCtrl::Undo() {
  bool done = false;
  component_->Call("Undo", [&it = *component_, &done] { done = it.Undo(); });
  return done;
}

bool MainMenuCtrl::Redo() {
  bool done = false;
  component_->Call("Redo", [&it = *component_, &done] { done = it.Redo(); });
  return done;
}

std::string MainMenuCtrl::UndoText() const {
  std::string text;
  component_->Call("UndoText", [&it = *component_, &text] {
    text = it.TextOf(it.context.device.History().NextBack());
  });
  return text;
}

std::string MainMenuCtrl::RedoText() const {
  std::string text;
  component_->Call("RedoText", [&it = *component_, &text] {
    text = it.TextOf(it.context.device.History().NextForth());
  });
  return text;
}

bool MainMenuCtrl::KnowsDevice() const { return component_->context.device.KnowsDevice(); }

std::vector<ReviewLine> MainMenuCtrl::Review() {
  std::vector<ReviewLine> lines;
  component_->Call("Review", [&, &it = *component_] { lines = it.Review(); });
  return lines;
}

FileReview MainMenuCtrl::Review(std::span<const std::uint8_t> file) {
  FileReview review;
  component_->Call("Review", [&, &it = *component_] { review = it.Review(file); });
  return review;
}

std::vector<SettingRow> MainMenuCtrl::AllSettings() {
  std::vector<SettingRow> rows;
  component_->Call("AllSettings", [&, &it = *component_] { rows = it.AllSettings(); });
  return rows;
}

bool MainMenuCtrl::TakeBack(const ReviewLine& line) {
  bool done = false;
  component_->Call("TakeBack", [&, &it = *component_] { done = it.TakeBack(line); });
  return done;
}

void MainMenuCtrl::CloseMenu() {
  component_->Call("CloseMenu", [&it = *component_] { it.CloseMenu(); });
}

bool MainMenuCtrl::OpenAt(const SettingPosition& position) {
  bool opened = false;
  component_->Call("OpenAt", [&, &it = *component_] { opened = it.OpenAt(position); });
  return opened;
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

quorvel::Font MainMenuCtrl::Font() const {
  quorvel::Font font;
  component_->Call("Font", [&] { font = component_->surface.LabelFont(); });
  return font;
}

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
  std::vector<std::uint8_t> numbers;
  component_->Call("ModifiedBlocks", [&] {
    const clsBlkSave& list = component_->context.device.env.blocks;
    for (Byte i = 0; i < list.BlkSavIdx(); ++i) {
      if (list.BlkNumSav(i) != 0) numbers.push_back(list.BlkNumSav(i));
    }
  });
  return numbers;
}

namespace {

/// What `ask` says of the present configuration; an empty answer where there is none, or where the
/// asking fails.
template <class Result, class Ask>
Result OfPresent(Component& component, std::string_view routine, const Ask& ask) {
  Result result;
  component.Call(routine, [&] {
    if (component.HasImage()) result = ask(component.Present());
  });
  return result;
}

}  // namespace

std::vector<SettingLine> MainMenuCtrl::Settings(std::string_view pattern) const {
  return OfPresent<std::vector<SettingLine>>(*component_, "Settings", [=](const Configuration& it) {
    return ListSettings(it.rec, it.id, it.blocks, pattern);
  });
}

std::optional<SettingDescription> MainMenuCtrl::DescribeSetting(std::string_view name) const {
  return OfPresent<std::optional<SettingDescription>>(
      *component_, "DescribeSetting",
      [=](const Configuration& it) { return quorvel::DescribeSetting(it, name); });
}

std::vector<SettingDescription> MainMenuCtrl::DescribeSettings(std::string_view pattern) const {
  return OfPresent<std::vector<SettingDescription>>(
      *component_, "DescribeSettings",
      [=](const Configuration& it) { return quorvel::DescribeSettings(it, pattern); });
}

std::optional<std::string> MainMenuCtrl::GetSetting(std::string_view name) const {
  return OfPresent<std::optional<std::string>>(
      *component_, "GetSetting",
      [=](const Configuration& it) { return quorvel::GetSetting(it, name); });
}

SetAnswer MainMenuCtrl::SetSetting(std::string_view name, std::string_view value) {
  SetAnswer answer = SetAnswer::kNotAValue;
  component_->Call("SetSetting", [&] { answer = component_->SetSetting(name, value); });
  return answer;
}

std::vector<SettingFinding> MainMenuCtrl::SettingFindings() const {
  return OfPresent<std::vector<SettingFinding>>(
      *component_, "SettingFindings", [](const Configuration& it) { return FindUnallowed(it); });
}

std::optional<std::vector<SettingDifference>> MainMenuCtrl::DifferencesFrom(
    std::span<const std::uint8_t> image) const {
  std::optional<std::vector<SettingDifference>> differences;
  component_->Call("DifferencesFrom", [&] { differences = component_->DifferencesFrom(image); });
  return differences;
}

std::vector<std::uint8_t> MainMenuCtrl::Image() const {
  std::vector<std::uint8_t> image;
  component_->Call("Image", [&] {
    const auto bytes = component_->context.device.BlkImage.Bytes();
    image.assign(bytes.begin(), bytes.end());
  });
  return image;
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
