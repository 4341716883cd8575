#include "muxhost/device/link.h"

#include <algorithm>
#include <utility>

namespace quorvel::muxhost {

namespace {

constexpr const char* kReceiveDialog = "frm_ULFrMux";
constexpr const char* kSendDialog = "frm_ToMux";
constexpr const char* kStopButton = "cmdStop";

bool Is(const std::optional<Fault>& fault, FaultKind kind) { return fault && fault->kind == kind; }

Interruption InterruptionOf(FaultKind kind, Traffic traffic) {
  if (traffic != Traffic::kPacket && traffic != Traffic::kArray) return {kReceiveDialog, nullptr};
  return {kSendDialog, kind == FaultKind::kStop ? kStopButton : nullptr};
}

}  // namespace

Link::Link(Scheduler scheduler, SimulatedDevice device)
    : scheduler_(std::move(scheduler)), device_(std::move(device)) {}

void Link::Connect(SimulatedDevice device) {
  BeginTransfer();
  device_ = std::move(device);
}

void Link::SetPace(bool sync, int latency_ms) {
  sync_ = sync;
  latency_ms_ = latency_ms;
}

void Link::Switch(bool on) {
  on_ = on;
  if (!on) transfer_ = std::make_shared<const int>(0);
}

void Link::BeginTransfer() {
  transfer_ = std::make_shared<const int>(0);
  fault_.BeginTransfer();
}

std::optional<Fault> Link::Strike(Traffic traffic) {
  auto fault = fault_.Strike(traffic);
  if (fault && on_fault) on_fault(*fault);
  return fault;
}

void Link::Take(const std::optional<Fault>& fault, std::vector<Step> steps) {
  auto take = [transfer = std::weak_ptr(transfer_), steps = std::move(steps)] {
    for (const Step& step : steps) {
      if (!transfer.expired()) step();
    }
  };
  if (Is(fault, FaultKind::kLate)) {
    scheduler_(latency_ms_ + fault->delay_ms, std::move(take));
  } else if (sync_) {
    take();
  } else {
    scheduler_(latency_ms_, std::move(take));
  }
}

void Link::AddInterruption(const std::optional<Fault>& fault, Traffic traffic,
                           std::vector<Step>& steps) {
  if (!Is(fault, FaultKind::kStop) && !Is(fault, FaultKind::kClose)) return;
  steps.emplace_back([this, what = InterruptionOf(fault->kind, traffic)] {
    if (interrupt) interrupt(what);
  });
}

void Link::Answer(Traffic traffic, std::vector<Byte> reply, Receive receive) {
  if (!on_) return;
  const auto fault = Strike(traffic);
  if (Is(fault, FaultKind::kSilent)) return;
  if (fault) Spoil(fault->kind, traffic, reply);
  std::vector<Step> steps;
  AddInterruption(fault, traffic, steps);
  // Shared, so that the receiver of a reply that comes twice is one.
  steps.emplace_back([reply = std::move(reply), shared = std::make_shared<const Receive>(
                                                    std::move(receive))] { (*shared)(reply); });
  if (Is(fault, FaultKind::kDuplicate)) steps.push_back(steps.back());
  Take(fault, std::move(steps));
}

SimulatedDevice::Written Link::WritePacket(std::span<const Byte> packet, Step acknowledge) {
  using Written = SimulatedDevice::Written;
  const auto fault = Strike(Traffic::kPacket);
  const bool ends = device_.EndsSend(packet);
  if (!fault) {
    if (device_.WritePacket(packet) == Written::kRefused) return Written::kRefused;
  } else {
    if (!ends && (packet.empty() || !device_.ReadBlock(packet[0]))) return Written::kRefused;
    WriteSpoiled(fault->kind, packet);
  }
  if (!Is(fault, FaultKind::kSilent)) {
    std::vector<Step> steps;
    AddInterruption(fault, Traffic::kPacket, steps);
    steps.push_back(std::move(acknowledge));
    Take(fault, std::move(steps));
  }
  return ends ? Written::kEnd : Written::kBlock;
}

/// An end packet that is not as it should be tells the device nothing: no block is touched.
void Link::WriteSpoiled(FaultKind kind, std::span<const Byte> packet) {
  std::vector<Byte> arrived(packet.begin(), packet.end());
  const bool whole =
      kind != FaultKind::kShort && kind != FaultKind::kGarbage && kind != FaultKind::kWrong;
  if (kind == FaultKind::kDrop || (!whole && device_.EndsSend(packet))) return;
  if (kind == FaultKind::kShort) {
    const auto old = device_.ReadBlock(packet[0]);
    if (!old || arrived.size() <= old->size()) return;
    const auto half = static_cast<std::ptrdiff_t>(old->size() / 2);
    std::copy(old->begin() + half, old->end(), arrived.begin() + 1 + half);
  } else if (kind == FaultKind::kWrong) {
    const int next = packet[0] + 1;
    arrived[0] = static_cast<Byte>(next <= device_.BlockCount() ? next : packet[0] - 1);
  } else if (kind == FaultKind::kGarbage) {
    Spoil(kind, Traffic::kPacket, arrived);
  }
  device_.WritePacket(arrived);
  if (kind == FaultKind::kDuplicate) device_.WritePacket(arrived);
}

bool Link::WriteArray(std::span<const Byte> array) {
  const auto fault = Strike(Traffic::kArray);
  if (Is(fault, FaultKind::kDrop)) return true;
  std::vector<Byte> arrived(array.begin(), array.end());
  if (fault) Spoil(fault->kind, Traffic::kArray, arrived);
  if (Is(fault, FaultKind::kDuplicate)) device_.WriteCombined(arrived);
  const bool taken = device_.WriteCombined(arrived);
  std::vector<Step> steps;
  AddInterruption(fault, Traffic::kArray, steps);
  if (!steps.empty()) Take(fault, std::move(steps));
  return taken;
}

}  // namespace quorvel::muxhost
