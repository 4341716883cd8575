#include "host/component.h"

#include <algorithm>
#include <cstdint>

#include "core/byte_order.h"
#include "core/change_marks.h"
#include "core/codec.h"
#include "core/comparison.h"
#include "core/factory_defaults.h"
#include "core/settings_by_name.h"
#include "host/model_catalogue.h"
#include "host/settings_file.h"
#include "resources/text_table.h"

namespace quorvel {

namespace {

constexpr std::int16_t kCommandTextSource = 191;

template <class Value>
Value Property(const PropertyBag& bag, std::string_view name, Value otherwise) {
  const auto stored = bag.Read(name);
  if (!stored) return otherwise;
  const Value* const value = std::get_if<Value>(&*stored);
  return value != nullptr ? *value : otherwise;
}

/// Runs a body that loads a configuration; it throws when it refuses.
template <class Body>
LoadAnswer Loaded(Body&& body) {
  try {
    return {true, body()};
  } catch (...) {
    return {false, FailureReason()};
  }
}

/// True for a part of the device's date and time.
bool IsOfClock(const Configuration& present, std::string_view name) {
  const auto setting = DescribeSetting(present, name);
  return setting && std::ranges::any_of(setting->places, [](const SettingPlace& place) {
           return IsClockByte(place.block, place.at);
         });
}

}  // namespace

std::shared_ptr<Component> Component::Create(Platform& platform, MainMenuEvents& host) {
  auto component = std::make_shared<Component>(platform, host);
  component->context.edges.life = component;
  return component;
}

Component::Component(Platform& platform, MainMenuEvents& host)
    : context(platform),
      host_(host),
      send_dialog_(context, upload_),
      upload_(context, host_, send_dialog_),
      receive_dialog_(context, download_),
      download_(context, host_, receive_dialog_) {
  surface.SetLabel(kComponentName);
  surface.on_click = [this] { Call("Click", [this] { host_->Click(); }); };
  surface.on_double_click = [this] { Call("DblClick", [this] { host_->DblClick(); }); };
}

void Component::InitProperties() {
  surface.SetFont(context.platform.AmbientFont());
  static_cast<void>(context.device.Record());
  surface.SetExtent(context.platform.MeasureText(surface.LabelFont(), surface.Label1()));
  context.host.HostCommId = 0;
  properties_changed = true;
}

void Component::ReadProperties(const PropertyBag& bag) {
  surface.SetEnabled(Property(bag, "Enabled", true));
  surface.SetFont(Property(bag, "Font", context.platform.AmbientFont()));
  surface.SetExtent(context.platform.MeasureText(surface.LabelFont(), surface.Label1()));
  context.host.HostCommId = Property(bag, "HostCommId", Byte{0});
  properties_changed = false;
}

void Component::WriteProperties(PropertyBag& bag) {
  bag.Write("Enabled", surface.Enabled());
  bag.Write("Font", surface.LabelFont());
  bag.Write("HostCommId", context.host.HostCommId);
  properties_changed = false;
}

void Component::Terminate() {
  context.edges.terminated = true;
  host_.Detach();
  send_dialog_.Over();
  upload_.Stop({});
  receive_dialog_.Close();
  CloseMenu();
}

void Component::CloseMenu() {
  if (const auto menu = std::exchange(frmMPop, nullptr)) menu->Unload();
}

void Component::Custom(std::int16_t command, std::int32_t param1, std::int32_t param2) {
  switch (command) {
    case 10: return receive_dialog_.Receive();
    case 11: return send_dialog_.Send();
    case 12:
      return context.edges.Guard("RestoreImageFromFile",
                                 [this] { receive_dialog_.RestoreImageFromFile(); });
    case 14: return context.edges.Guard("SaveImageToFile", [this] { SaveImageToFile(context); });
    case 15: return OpenMenu(static_cast<std::int16_t>(param1));
    case 16: return download_.BuildDefaults();
    case 17: return SendActivityGrid(param1);
    case 18:
      context.host.HostType = static_cast<std::int16_t>(param1);
      context.host.HostIsDvr = static_cast<Byte>(param2);
      return;
    default: return Ignored("there is no command " + std::to_string(command));
  }
}

void Component::CustomWithString(std::int16_t command, std::string_view text) {
  if (command != kCommandTextSource) {
    return Ignored("there is no command " + std::to_string(command) + " with a text");
  }
  if (!context.texts.CreateTextSource(context.platform.Classes(), text)) {
    Ignored("no text source could be made of class " + std::string(text));
  }
}

void Component::Ignored(const std::string& what) const {
  context.edges.Log(LogLevel::kWarning, what);
}

void Component::OpenMenu(std::int16_t link) {
  context.host.MenuParam = link;
  context.host.MenuHostCommId = context.host.HostCommId;
  if (frmMPop != nullptr) frmMPop->Unload();
  // Loading asks the host for texts, which may open another menu.
  const auto menu = std::make_shared<frm_Menu>(context);
  frmMPop = menu;
  menu->ActGridRequest = [this] { host_->ActGridPop(context.device.env.identity.MaxCam); };
  menu->Load();
}

void Component::SendActivityGrid(int camera) {
  if (!ReadActivityGrid(context.device, camera, ActGridBuf)) {
    return Ignored("there is no grid of camera " + std::to_string(camera));
  }
  host_->ActGridData(ActGridBuf);
}

void Component::SaveConnectedInfo(std::span<const Byte> data) {
  if (!SaveConnectedIdentity(context.host, data)) Ignored("SaveConnectedInfo: too short");
}

void Component::UpdateActGrid(std::span<const Byte> data) {
  context.device.AsStep({{}, txt::kSetupActiveZones}, [&] {
    if (!UpdateActivityGrid(context.device, data)) {
      Ignored("UpdateActGrid: too short, or of no camera");
    }
  });
}

void Component::FillComboInfo(std::span<const Byte> data) {
  constexpr std::size_t kSizesLength = 7;
  if (data.size() < kSizesLength) return Ignored("FillComboInfo: too short");
  context.host.combo_sizes = {FromDeviceOrder(data.subspan<0, 2>()), data[2],
                              FromDeviceOrder(data.subspan<3, 2>()), data[5], data[6]};
  context.host.ComboMode = true;
}

void Component::UsePcTime(bool use) {
  if (!context.device.HasImage()) return;
  context.device.AsStep({{}, txt::kTimeAndDate}, [&] {
    if (use) {
      context.device.TakePcTime(context.platform.Now());
    } else {
      context.device.UsePcTime = false;
    }
  });
}

/// The blocks of a send that is under way are taken from the image as it is.
bool Component::GoAStep(bool (DeviceState::*go)()) {
  if (State().under_way == TransferKind::kSend) return false;
  const int generation = context.device.ImageGeneration();
  if (!(context.device.*go)()) return false;
  // Of another image, the exchange that it came in.
  if (generation != context.device.ImageGeneration()) {
    context.host.ComboMode = !context.device.ComboArray.Bytes().empty();
  }
  return true;
}

std::string Component::TextOf(const StepName& step) {
  return step.id != 0 ? context.GetText(step.id) : step.text;
}

LoadAnswer Component::LoadSettings(std::span<const Byte> file) {
  return Loaded([&] { return download_.LoadSettings(file); });
}

LoadAnswer Component::LoadDefaults(Byte cameras, Byte model_code, std::string_view model_name,
                                   char variant) {
  return Loaded([&] {
    download_.LoadDefaults(NamedDevice(cameras, model_code, model_name, variant));
    return std::string();
  });
}

bool Component::StartReceive() {
  if (!upload_.Run().UnderWay()) return download_.Receive();
  download_.Refuse("A send is under way.");
  return false;
}

bool Component::StartSend(const SendChoice& choice) {
  if (!download_.Run().UnderWay()) return upload_.Send(choice);
  upload_.Refuse("A receive is under way.");
  return false;
}

void Component::CancelTransfer() {
  if (upload_.Run().UnderWay()) {
    upload_.Cancel();
  } else {
    download_.Cancel();
  }
}

ControlState Component::State() const {
  ControlState state;
  state.has_image = context.device.HasImage();
  state.origin = context.device.Origin();
  state.combined = context.host.ComboMode;
  const bool sends = upload_.Run().UnderWay();
  const TransferRun& run = sends ? upload_.Run() : download_.Run();
  if (!run.UnderWay()) return state;
  state.under_way = sends ? TransferKind::kSend : TransferKind::kReceive;
  state.done = run.Done();
  state.total = run.Total();
  return state;
}

/// Works on copies: the image itself is encoded when it is sent.
std::vector<Byte> Component::EditedImage() {
  BlockImage image = context.device.BlkImage;
  RecordEnvironment env = context.device.env;
  MuxData record(env);
  record = context.device.Record();
  EncodeModifiedBlocks(image, env, record);
  const auto bytes = image.Bytes();
  return {bytes.begin(), bytes.end()};
}

Configuration Component::Present() {
  return {context.device.Record(), context.device.env.identity, context.device.BlkImage.BlkCount()};
}

SetAnswer Component::SetSetting(std::string_view name, std::string_view value) {
  if (!HasImage()) return SetAnswer::kNoImage;
  const std::string bytes = context.platform.FromUtf8(value);
  // A character that the device does not know would become another.
  if (context.platform.ToUtf8(bytes) != value) return SetAnswer::kNotAValue;
  SetAnswer answer = SetAnswer::kUnchanged;
  context.device.AsStep({std::string(name)}, [&] {
    answer = quorvel::SetSetting(Present(), context.device.env, name, bytes);
    // Who sets the clock does not want the computer's time, as in its editor.
    if (answer == SetAnswer::kSet && context.device.UsePcTime && IsOfClock(Present(), name)) {
      context.device.UsePcTime = false;
    }
  });
  return answer;
}

std::optional<std::vector<SettingDifference>> Component::DifferencesFrom(
    std::span<const Byte> image) {
  if (!HasImage()) return std::nullopt;
  BlockImage other({image.begin(), image.end()});
  RecordEnvironment other_env;
  MuxData other_record(other_env);
  try {
    DecodeImage(other, other_env, other_record);
  } catch (const ImageError&) {
    return std::nullopt;
  }
  return CompareConfigurations(Present(), {other_record, other_env.identity, other.BlkCount()});
}

}  // namespace quorvel
