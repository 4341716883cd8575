#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "muxhost/device/link_fault.h"
#include "muxhost/device/simulated_device.h"

namespace quorvel::muxhost {

/// What the user does at the dialog of a transfer while it runs.
struct Interruption {
  const char* window;  ///< the dialog's name
  const char*
      button;  ///< the button that is pressed; a null pointer: the window's own close button
};

/// The link between a host and a simulated device. It carries what it is given at its own pace,
/// and misbehaves as it is told (LinkFault).
class Link {
 public:
  /// Runs `task` on the user-interface thread, `milliseconds` later.
  using Scheduler = std::function<void(int milliseconds, std::function<void()> task)>;
  using Receive = std::function<void(std::span<const Byte> reply)>;
  using Step = std::function<void()>;

  Link(Scheduler scheduler, SimulatedDevice device);
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;
  ~Link() = default;

  [[nodiscard]] const SimulatedDevice& Device() const { return device_; }
  /// Replaces the device. What is under way is dropped.
  void Connect(SimulatedDevice device);
  /// What a reply or an acknowledgement takes; with `sync` it comes before the call returns.
  void SetPace(bool sync, int latency_ms);

  void SetFault(const std::optional<Fault>& fault) { fault_.Set(fault); }
  /// The fault that waits to strike.
  [[nodiscard]] const std::optional<Fault>& PendingFault() const { return fault_.Pending(); }

  /// Off, it carries nothing, and what is under way is lost. New links are on.
  void Switch(bool on);
  [[nodiscard]] bool IsOn() const { return on_; }

  /// A transfer begins: replies and acknowledgements of the one before are dropped.
  void BeginTransfer();

  /// Carries a reply of the device to the host.
  void Answer(Traffic traffic, std::vector<Byte> reply, Receive receive);
  /// Carries a packet to the device; `acknowledge` is called when the device has taken it. The
  /// result is what the host has to believe. Not for a link that is off; nor is WriteArray.
  SimulatedDevice::Written WritePacket(std::span<const Byte> packet, Step acknowledge);
  /// Carries a combined array to the device; false when the device does not take it. What the
  /// link loses counts as taken.
  bool WriteArray(std::span<const Byte> array);

  /// Called when the fault strikes.
  std::function<void(const Fault&)> on_fault;
  /// Does what the user does at the screen.
  std::function<void(const Interruption&)> interrupt;

 private:
  std::optional<Fault> Strike(Traffic traffic);
  void WriteSpoiled(FaultKind kind, std::span<const Byte> packet);
  /// Takes the steps now or later, until another transfer begins.
  void Take(const std::optional<Fault>& fault, std::vector<Step> steps);
  void AddInterruption(const std::optional<Fault>& fault, Traffic traffic,
                       std::vector<Step>& steps);

  Scheduler scheduler_;
  SimulatedDevice device_;
  LinkFault fault_;
  bool on_ = true;
  bool sync_ = false;
  int latency_ms_ = 0;
  /// Replaced by every transfer, so that steps of an old one find it gone.
  std::shared_ptr<const int> transfer_ = std::make_shared<const int>(0);
};

}  // namespace quorvel::muxhost
