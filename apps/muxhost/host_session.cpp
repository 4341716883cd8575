#include "muxhost/host_session.h"

#include <utility>

#include "muxhost/script/report.h"
#include "quorvel/platform.h"

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
  PlaceControl();
}

void HostSession::Connect(SimulatedDevice device) {
  exchange_ = std::make_shared<Exchange>();
  link_.Connect(std::move(device));
  PlaceControl();
  if (on_change) on_change();
}

void HostSession::PlaceControl() {
  control_ = std::make_unique<MainMenuCtrl>(platform_, *this);
  control_->InitProperties();
  StateSettings();
  if (!text_class_.empty()) control_->CustomWithString(kTextSource, 0, 0, text_class_);
  StateIdentity();
}

void HostSession::UseTexts(std::string class_id) {
  text_class_ = std::move(class_id);
  exchange_ = std::make_shared<Exchange>();
  link_.BeginTransfer();
  PlaceControl();
  if (on_change) on_change();
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
  if (link_.IsOn()) return false;
  Log("nothing crosses the link: it is off");
  return true;
}

void HostSession::StateSettings() {
  const int usual = Device().ModelCode() < kFirstTriplexModel ? kDuplexFamily : kTriplexFamily;
  control_->HostCommId(static_cast<std::uint8_t>(settings_.comm_id));
  control_->Custom(kStateHost, settings_.family.value_or(usual), settings_.dvr ? 1 : 0);
}

/// Stating sizes selects the combined exchange and leaves the identity, which settings files need.
void HostSession::StateIdentity() {
  std::vector<Byte> info{0};
  info.insert(info.end(), Device().IdentityBytes().begin(), Device().IdentityBytes().end());
  control_->SaveConnectedInfo(info);
  if (Device().IsCombined()) control_->FillComboInfo(Device().Sizes());
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
