#include "muxhost/host_session.h"

#include <algorithm>
#include <utility>

#include "muxhost/script/report.h"
#include "quorvel/platform.h"
#include "settings_files/file_parts.h"

namespace quorvel::muxhost {

namespace {

constexpr std::int16_t kReceive = 10;
constexpr std::int16_t kSend = 11;
constexpr std::int16_t kRestoreFile = 12;
constexpr std::int16_t kSaveFile = 14;
constexpr std::int16_t kMenu = 15;
constexpr std::int16_t kFactoryDefaults = 16;
constexpr std::int16_t kActivityGrid = 17;
constexpr std::int16_t kStateHost = 18;
constexpr std::int16_t kTextSource = 191;

constexpr int kDuplexFamily = 16;
constexpr int kTriplexFamily = 48;

}  // namespace

HostSession::HostSession(Platform& platform, Scheduler scheduler, SimulatedDevice device)
    : platform_(platform), link_(std::move(scheduler), std::move(device)) {
  link_.on_fault = [this](const Fault& fault) { Log("the link fails: " + Describe(fault)); };
  link_.interrupt = [this](const Interruption& what) { LogInterruption(what); };
  link_.SetPace(settings_.sync, settings_.latency_ms);
  PlaceControl(NewControl());
}

void HostSession::Connect(SimulatedDevice device) {
  auto control = NewControl();
  link_.Connect(std::move(device));
  has_device_ = true;
  PlaceControl(std::move(control));
  if (on_change) on_change();
}

std::unique_ptr<MainMenuCtrl> HostSession::NewControl() {
  auto control = std::make_unique<MainMenuCtrl>(platform_, *this);
  control->InitProperties();
  if (!text_class_.empty()) control->CustomWithString(kTextSource, 0, 0, text_class_);
  return control;
}

void HostSession::PlaceControl(std::unique_ptr<MainMenuCtrl> control) {
  exchange_ = std::make_shared<Exchange>();
  if (on_control_leaves) on_control_leaves();
  control_ = std::move(control);
  control_->Observe(this);
  StateSettings();
  StateIdentity();
}

void HostSession::Progress(TransferKind /*which*/, int done, int total) {
  if (on_progress) on_progress(done, total);
}

void HostSession::Ended(TransferKind /*which*/, TransferEnd /*end*/, std::string_view /*cause*/) {
  if (on_progress) on_progress(0, 0);
}

void HostSession::UseTexts(std::string class_id) {
  text_class_ = std::move(class_id);
  link_.BeginTransfer();
  PlaceControl(NewControl());
  if (on_change) on_change();
}

LoadAnswer HostSession::Open(std::span<const Byte> file) {
  const files::FileParts parts = files::PartsOf(file);
  auto control = NewControl();
  LoadAnswer answer = files::LoadAsItIs(*control, file, parts);
  if (!answer) return answer;
  std::vector<Byte> sizes;
  if (parts.combined) {
    const auto stated = file.subspan(files::kSizesAt, files::kSizesLength);
    sizes.assign(stated.begin(), stated.end());
  }
  GoOnWithout(std::move(control), std::move(sizes));
  return answer;
}

LoadAnswer HostSession::OpenDefaults(const DeviceSetup& setup) {
  const BlockImage factory = FactoryImage(setup);
  const auto identity = factory.Block(kIdentityBlock).subspan<2>();
  auto control = NewControl();
  LoadAnswer answer =
      control->LoadDefaults(static_cast<Byte>(setup.cameras), static_cast<Byte>(setup.model),
                            std::string(identity.begin(), identity.end()), VariantOf(factory));
  if (answer) GoOnWithout(std::move(control), {});
  return answer;
}

/// Bytes behind the blocks that an image counts belong to none, and no device has them.
void HostSession::GoOnWithout(std::unique_ptr<MainMenuCtrl> control, std::vector<Byte> sizes) {
  auto image = control->Image();
  image.resize(std::size_t{image.at(kBlockCountByte)} * kBlockSize);
  link_.Connect(SimulatedDevice(std::move(image)));
  has_device_ = false;
  open_sizes_ = std::move(sizes);
  PlaceControl(std::move(control));
  if (on_change) on_change();
}

std::string HostSession::ConnectToOpen(SimulatedDevice device) {
  SimulatedDevice stand_in = link_.Device();
  const auto state = [this](SimulatedDevice stated, bool is_device) {
    link_.Connect(std::move(stated));
    has_device_ = is_device;
    StateSettings();
    StateIdentity();
  };
  state(std::move(device), true);
  std::string mismatch = control_->DeviceMismatch();
  if (!mismatch.empty()) state(std::move(stand_in), false);
  if (on_change) on_change();
  return mismatch;
}

void HostSession::Configure(const HostSettings& settings) {
  settings_ = settings;
  link_.SetPace(settings_.sync, settings_.latency_ms);
  StateSettings();
  if (on_change) on_change();
}

void HostSession::SetFault(const std::optional<Fault>& fault) {
  link_.SetFault(fault);
  if (on_change) on_change();
}

void HostSession::SwitchLink(bool on) {
  link_.Switch(on);
  Log(on ? "the link is on" : "the link is off");
}

bool HostSession::LinkIsOff() {
  if (LinkIsOn()) return false;
  Log(has_device_ ? "nothing crosses the link: it is off" : "no device is connected");
  return true;
}

void HostSession::StateSettings() {
  ++generation_;
  const int usual = Device().ModelCode() < kFirstTriplexModel ? kDuplexFamily : kTriplexFamily;
  control_->HostCommId(static_cast<std::uint8_t>(settings_.comm_id));
  control_->Custom(kStateHost, settings_.family.value_or(usual), settings_.dvr ? 1 : 0);
}

/// Stating sizes selects the combined exchange and leaves the identity, which settings files need.
/// No device at all is stated as one of no cameras, which no configuration is of.
void HostSession::StateIdentity() {
  std::vector<Byte> info{0};
  info.insert(info.end(), Device().IdentityBytes().begin(), Device().IdentityBytes().end());
  if (!has_device_) std::fill(info.begin(), info.end(), Byte{0});
  control_->SaveConnectedInfo(info);
  const auto sizes = Device().IsCombined() ? Device().Sizes() : std::vector<Byte>();
  const auto& stated = has_device_ ? sizes : open_sizes_;
  if (!stated.empty()) control_->FillComboInfo(stated);
}

void HostSession::BeginExchange() {
  exchange_ = std::make_shared<Exchange>();
  link_.BeginTransfer();
}

void HostSession::Download() {
  BeginExchange();
  control_->Custom(kReceive, 0, 0);
}

std::vector<Byte> HostSession::LackingBlocks() const {
  const auto image = control_->Image();
  std::vector<Byte> lacking;
  if (image.size() <= kBlockCountByte) return lacking;
  for (int n = image[kBlockCountByte] + 1; n <= Device().BlockCount(); ++n) {
    lacking.push_back(static_cast<Byte>(n));
  }
  return lacking;
}

int HostSession::Cameras() const {
  constexpr std::size_t kCamerasByte = (kIdentityBlock - 1) * kBlockSize;
  const auto image = control_->Image();
  return image.size() > kCamerasByte ? image[kCamerasByte] : Device().IdentityBytes().at(0);
}

void HostSession::Upload() {
  BeginExchange();
  const auto lacking = LackingBlocks();
  if (!lacking.empty()) {
    Log("the configuration has nothing for blocks " + AbbreviateRuns(lacking) + " of the device");
  }
  const auto exchange = exchange_;
  control_->Custom(kSend, 0, 0);
  exchange->ended = true;
  ReadBackWritten(exchange);
}

void HostSession::ReadBackWritten(const std::shared_ptr<Exchange>& exchange) {
  if (!exchange->sent_blocks.empty() && LinkIsOff()) return;
  exchange->read_back = CompareWith(Device(), *exchange);
  if (!exchange->read_back) return;
  for (std::string& sentence : InWords(*exchange->read_back)) Log(std::move(sentence));
}

void HostSession::Save() { control_->Custom(kSaveFile, 0, 0); }

void HostSession::Restore() {
  BeginExchange();
  control_->Custom(kRestoreFile, 0, 0);
  // A file that holds a combined array selects that exchange; the device has not changed.
  StateIdentity();
}

void HostSession::BuildDefaults() {
  BeginExchange();
  control_->Custom(kFactoryDefaults, 0, 0);
}

void HostSession::OpenMenu() { control_->Custom(kMenu, settings_.link, 0); }

std::optional<std::vector<Byte>> HostSession::ReadZones(int camera) {
  zones_.clear();
  control_->Custom(kActivityGrid, camera, 0);
  if (zones_.empty()) return std::nullopt;
  return zones_;
}

std::string HostSession::TitleOf(int camera) const {
  constexpr std::size_t kTitleLength = 13;
  const auto image = control_->EditedImage();
  const std::size_t at = static_cast<std::size_t>(camera) * kBlockSize;
  if (at + kTitleLength > image.size()) return {};
  std::string title(image.begin() + static_cast<std::ptrdiff_t>(at),
                    image.begin() + static_cast<std::ptrdiff_t>(at + kTitleLength));
  title.resize(std::min(title.find('\0'), title.size()));
  title.erase(title.find_last_not_of(' ') + 1);
  return platform_.ToUtf8(title);
}

bool HostSession::DetectsMotion(int camera) const {
  const auto lines = control_->Settings("ActivityEnable(" + std::to_string(camera) + ")");
  return lines.empty() || lines.front().value != "0";
}

void HostSession::WriteZones(int camera, std::span<const Byte> zones) {
  std::vector<Byte> data{static_cast<Byte>(camera)};
  data.insert(data.end(), zones.begin(), zones.end());
  control_->UpdateActGrid(data);
  if (on_change) on_change();
}

void HostSession::Log(std::string entry) {
  ++generation_;
  log_.push_back(std::move(entry));
  if (on_change) on_change();
}

void HostSession::LogInterruption(const Interruption& what) {
  const bool done = interrupt && interrupt(what);
  const std::string window = what.window;
  if (what.button == nullptr) {
    Log((done ? "somebody closed " : "nobody could close ") + window);
  } else {
    Log((done ? "somebody pressed " : "nobody could press ") + std::string(what.button) + " of " +
        window);
  }
}

}  // namespace quorvel::muxhost
