#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "muxhost/device/link.h"

namespace quorvel::muxhost {

/// Reads a device's whole configuration over the link, as a settings file holds it: block after
/// block, or the combined array of a device that speaks the combined exchange. It needs no control.
///
/// A reply that was not asked for last is ignored. When an answer does not come, nothing more
/// happens. Another transfer, or the end of the reader, drops what is under way.
class DeviceReader {
 public:
  /// `link` must outlive the reader.
  explicit DeviceReader(Link& link) : link_(link) {}
  DeviceReader(const DeviceReader&) = delete;
  DeviceReader& operator=(const DeviceReader&) = delete;
  ~DeviceReader() = default;

  /// The three must be set. None of them may end the reader.
  std::function<void(int blocks, int of)> on_progress;
  std::function<void(const std::vector<Byte>& bytes)> on_done;
  std::function<void(const std::string& reason)> on_failed;  ///< why there is nothing to be had

  void Start();

 private:
  using Take = void (DeviceReader::*)(std::span<const Byte> reply);
  void Ask(Traffic traffic, std::vector<Byte> reply, Take take);
  void AskForNextBlock();
  void TakeBlock(std::span<const Byte> reply);
  void TakeArray(std::span<const Byte> reply);
  [[nodiscard]] int BlocksRead() const;
  void Finish();

  Link& link_;
  std::vector<Byte> bytes_;
  /// Gone with the reader: a late reply finds no reader.
  std::shared_ptr<DeviceReader*> self_ = std::make_shared<DeviceReader*>(this);
};

}  // namespace quorvel::muxhost
