#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "muxhost/device/simulated_device.h"

namespace quorvel::muxhost {

/// How the device holds what it was sent, read after the send.
struct ReadBack {
  int blocks = 0;            ///< blocks compared
  bool macros = false;       ///< macro data was compared
  std::vector<Byte> differ;  ///< numbers of the blocks that are not as sent
  bool macros_differ = false;

  [[nodiscard]] bool AsSent() const { return differ.empty() && !macros_differ; }
};

/// What crossed the link since the last download, upload, restore or building of defaults began.
struct Exchange {
  int blocks_read = 0;               ///< blocks handed to the control
  std::size_t bytes_read = 0;        ///< bytes that came in one piece: an image or a combined array
  bool arrived = false;              ///< the control has reported the data's arrival
  std::vector<Byte> blocks_written;  ///< block by block: numbers, in the order of writing
  std::optional<Byte> unanswered;    ///< the block handed over last, until it is acknowledged
  bool end_written = false;          ///< block by block: the packet that ends a send has come
  std::size_t array_bytes = 0;       ///< bytes of the combined array that has come; 0 without one
  bool array_taken = false;          ///< the device has taken it
  /// What the control handed over to be written: the last bytes for each block, and the macro data.
  std::map<Byte, std::vector<Byte>> sent_blocks;
  std::vector<Byte> sent_macros;
  bool ended = false;                 ///< a send has returned: nothing is acknowledged any more
  std::optional<ReadBack> read_back;  ///< after an upload in which something was handed over

  /// Notes a packet that ends a send. A second one shows that the first was block 255, all zero.
  void NoteEnd(std::span<const Byte> packet);
  /// Notes a packet with a block.
  void NoteBlock(std::span<const Byte> packet);
  /// Notes a combined array.
  void NoteArray(std::span<const Byte> array);
};

/// Compares what was handed over with what the device holds; nothing when nothing was.
[[nodiscard]] std::optional<ReadBack> CompareWith(const SimulatedDevice& device,
                                                  const Exchange& exchange);
/// A sentence each: "verified 3 blocks"; or "block 12 is not as sent".
[[nodiscard]] std::vector<std::string> InWords(const ReadBack& result);

}  // namespace quorvel::muxhost
