#include "apps/muxhost/host_session.h"

#include <utility>

#include "quorvel/platform.h"

namespace quorvel::muxhost {

namespace {

constexpr std::int16_t kReceive = 10;
constexpr std::int16_t kSend = 11;
constexpr std::int16_t kMenu = 15;
constexpr std::int16_t kStateHost = 18;

constexpr int kFirstTriplexModel = 6;
constexpr int kDuplexFamily = 16;
constexpr int kTriplexFamily = 48;

/// A model name as bytes, without what pads it.
std::string_view WithoutPadding(std::string_view name) {
  name = name.substr(0, name.find('\0'));
  return name.substr(0, name.find_last_not_of(' ') + 1);
}

}  // namespace

HostSession::HostSession(Platform& platform, Scheduler scheduler, SimulatedDevice device)
    : platform_(platform), scheduler_(std::move(scheduler)), device_(std::move(device)) {
  PlaceControl();
}

void HostSession::Connect(SimulatedDevice device) {
  exchange_ = std::make_shared<Exchange>();
  device_ = std::move(device);
  PlaceControl();
  if (on_change) on_change();
}

void HostSession::PlaceControl() {
  control_ = std::make_unique<MainMenuCtrl>(platform_, *this);
  control_->InitProperties();
  StateSettings();
  StateIdentity();
}

void HostSession::Configure(const HostSettings& settings) {
  settings_ = settings;
  StateSettings();
  if (on_change) on_change();
}

void HostSession::StateSettings() {
  const int usual = device_.ModelCode() < kFirstTriplexModel ? kDuplexFamily : kTriplexFamily;
  control_->HostCommId(static_cast<std::uint8_t>(settings_.comm_id));
  control_->Custom(kStateHost, settings_.family.value_or(usual), settings_.dvr ? 1 : 0);
}

void HostSession::StateIdentity() {
  std::vector<Byte> info{0};
  info.insert(info.end(), device_.IdentityBytes().begin(), device_.IdentityBytes().end());
  control_->SaveConnectedInfo(info);
}

void HostSession::Download() {
  exchange_ = std::make_shared<Exchange>();
  control_->Custom(kReceive, 0, 0);
}

void HostSession::Upload() {
  exchange_ = std::make_shared<Exchange>();
  control_->Custom(kSend, 0, 0);
}

void HostSession::OpenMenu() { control_->Custom(kMenu, settings_.link, 0); }

void HostSession::Log(std::string entry) {
  log_.push_back(std::move(entry));
  if (on_change) on_change();
}

void HostSession::Reply(std::function<void()> answer) {
  if (settings_.sync) {
    answer();
    return;
  }
  scheduler_(settings_.latency_ms,
             [exchange = std::weak_ptr<Exchange>(exchange_), answer = std::move(answer)] {
               if (exchange.lock()) answer();
             });
}

void HostSession::HandOver(int block) {
  std::vector<Byte> reply;
  if (settings_.comm_id != 0 && block == 1) {
    reply.assign(device_.Bytes().begin(), device_.Bytes().end());
    reply.push_back(0);
    exchange_->blocks_read = device_.BlockCount();
  } else if (const auto bytes = device_.ReadBlock(block)) {
    reply.push_back(static_cast<Byte>(block));
    reply.insert(reply.end(), bytes->begin(), bytes->end());
    ++exchange_->blocks_read;
  } else {
    Log("not answered: the device has no block " + std::to_string(block));
    return;
  }
  control_->FillDataBlk(reply);
}

void HostSession::RequestBlk(std::uint8_t blknum) {
  Log("RequestBlk " + std::to_string(blknum));
  Reply([this, blknum] { HandOver(blknum); });
}

void HostSession::DownLoadData(std::span<std::uint8_t> bdata) {
  const std::string number = bdata.empty() ? "nothing" : std::to_string(bdata[0]);
  switch (device_.WritePacket(bdata)) {
    case SimulatedDevice::Written::kBlock:
      exchange_->blocks_written.push_back(bdata[0]);
      Log("DownLoadData " + number);
      break;
    case SimulatedDevice::Written::kEnd:
      exchange_->end_written = true;
      Log("DownLoadData end");
      break;
    case SimulatedDevice::Written::kRefused:
      Log("DownLoadData " + number);
      Log("not written: the device refuses block " + number);
      return;
  }
  Reply([this] { control_->TriggerUploadTimer(); });
}

void HostSession::UploadSucceeded() {
  exchange_->arrived = true;
  Log("UploadSucceeded");
}

void HostSession::ULSucceededWithStr(std::string_view mname, std::uint8_t param1,
                                     std::uint8_t param2) {
  exchange_->arrived = true;
  Log("ULSucceededWithStr " + platform_.ToUtf8(WithoutPadding(mname)) + " " +
      std::to_string(param1) + " " + std::to_string(param2));
}

void HostSession::RequestComboBlocks() {
  Log("RequestComboBlocks");
  Log("not answered: this host exchanges single blocks");
}

void HostSession::SendComboBlocks(std::span<std::uint8_t> cb_data) {
  Log("SendComboBlocks " + std::to_string(cb_data.size()) + " bytes");
  Log("not written: this host exchanges single blocks");
}

void HostSession::ActGridPop(std::uint8_t maxcam) { Log("ActGridPop " + std::to_string(maxcam)); }

void HostSession::ActGridData(std::span<const std::uint8_t> barray) {
  Log("ActGridData " + std::to_string(barray.size()) + " bytes");
}

void HostSession::Click() { Log("Click"); }
void HostSession::DblClick() { Log("DblClick"); }

}  // namespace quorvel::muxhost
