#include "muxhost/exchange.h"

#include <algorithm>

#include "muxhost/device/combined_parts.h"

namespace quorvel::muxhost {

namespace {

std::vector<Byte> Copy(std::span<const Byte> bytes) { return {bytes.begin(), bytes.end()}; }

}  // namespace

void Exchange::NoteBlock(std::span<const Byte> packet) {
  if (packet.size() <= kBlockSize) return;
  sent_blocks[packet[0]] = Copy(packet.subspan(1, kBlockSize));
  unanswered = packet[0];
}

void Exchange::NoteEnd(std::span<const Byte> packet) {
  if (end_written) NoteBlock(packet);
  end_written = true;
}

void Exchange::NoteArray(std::span<const Byte> array) {
  array_bytes = array.size();
  const auto parts = TakeApart(array);
  if (!parts) return;
  const std::size_t count =
      std::min<std::size_t>(parts->blocks.size() / kBlockSize, kMostDeviceBlocks);
  for (std::size_t n = 0; n < count; ++n) {
    sent_blocks[static_cast<Byte>(n + 1)] = Copy(parts->blocks.subspan(n * kBlockSize, kBlockSize));
  }
  if (!parts->macros.empty()) sent_macros = Copy(parts->macros);
}

std::optional<ReadBack> CompareWith(const SimulatedDevice& device, const Exchange& exchange) {
  if (exchange.sent_blocks.empty() && exchange.sent_macros.empty()) return std::nullopt;
  ReadBack result;
  result.blocks = static_cast<int>(exchange.sent_blocks.size());
  for (const auto& [number, bytes] : exchange.sent_blocks) {
    if (device.ReadBlock(number) != bytes) result.differ.push_back(number);
  }
  result.macros = !exchange.sent_macros.empty();
  const auto macros = device.Macros();
  result.macros_differ =
      result.macros && !std::equal(macros.begin(), macros.end(), exchange.sent_macros.begin(),
                                   exchange.sent_macros.end());
  return result;
}

std::vector<std::string> InWords(const ReadBack& result) {
  std::vector<std::string> sentences;
  for (const int number : result.differ) {
    sentences.push_back("block " + std::to_string(number) + " is not as sent");
  }
  if (result.macros_differ) sentences.emplace_back("the macro data is not as sent");
  if (!sentences.empty()) return sentences;
  std::string verified =
      "verified " + std::to_string(result.blocks) + (result.blocks == 1 ? " block" : " blocks");
  if (result.macros) verified += " and the macro data";
  return {verified};
}

}  // namespace quorvel::muxhost
