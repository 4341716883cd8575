#include "muxhost/device_reader.h"

#include <utility>

#include "muxhost/device/combined_parts.h"
#include "quorvel/identity.h"

namespace quorvel::muxhost {

namespace {

/// Why the bytes are no configuration; empty when they are one.
std::string ReasonAgainst(const std::vector<Byte>& image) {
  try {
    static_cast<void>(ReadIdentity(BlockImage(image)));
  } catch (const ImageError& error) {
    return error.what();
  }
  return {};
}

}  // namespace

void DeviceReader::Start() {
  link_.BeginTransfer();
  bytes_.clear();
  if (!link_.IsOn()) {
    on_failed("the link is off");
    return;
  }
  if (link_.Device().IsCombined()) {
    Ask(Traffic::kArrayReply, link_.Device().CombinedBytes(), &DeviceReader::TakeArray);
  } else {
    AskForNextBlock();
  }
}

void DeviceReader::Ask(Traffic traffic, std::vector<Byte> reply, Take take) {
  link_.Answer(traffic, std::move(reply),
               [self = std::weak_ptr(self_), take](std::span<const Byte> arrived) {
                 const auto reader = self.lock();
                 if (reader != nullptr) ((*reader)->*take)(arrived);
               });
}

int DeviceReader::BlocksRead() const { return static_cast<int>(bytes_.size()) / kBlockSize; }

void DeviceReader::AskForNextBlock() {
  const int number = BlocksRead() + 1;
  const auto block = link_.Device().ReadBlock(number);
  if (!block) {
    on_failed("the device has no block " + std::to_string(number));
    return;
  }
  std::vector<Byte> reply{static_cast<Byte>(number)};
  reply.insert(reply.end(), block->begin(), block->end());
  Ask(Traffic::kBlockReply, std::move(reply), &DeviceReader::TakeBlock);
}

void DeviceReader::TakeBlock(std::span<const Byte> reply) {
  const int awaited = BlocksRead() + 1;
  if (reply.empty() || reply[0] != awaited) return;
  if (reply.size() != 1 + kBlockSize) {
    on_failed("block " + std::to_string(awaited) + " came with " +
              std::to_string(reply.size() - 1) + " bytes");
    return;
  }
  bytes_.insert(bytes_.end(), reply.begin() + 1, reply.end());
  const int count = bytes_.at(kBlockCountByte);
  on_progress(awaited, count);
  if (awaited < count) {
    AskForNextBlock();
  } else {
    Finish();
  }
}

void DeviceReader::Finish() {
  const std::string fault = ReasonAgainst(bytes_);
  if (fault.empty()) {
    on_done(std::exchange(bytes_, {}));
  } else {
    on_failed("what came is no configuration: " + fault);
  }
}

void DeviceReader::TakeArray(std::span<const Byte> reply) {
  const auto parts = TakeApart(reply);
  if (!parts || parts->blocks.empty() ||
      !ReasonAgainst({parts->blocks.begin(), parts->blocks.end()}).empty()) {
    on_failed("the array that came is no configuration");
    return;
  }
  on_done({reply.begin(), reply.end()});
}

}  // namespace quorvel::muxhost
