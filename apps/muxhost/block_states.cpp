#include "muxhost/block_states.h"

#include <algorithm>
#include <array>
#include <utility>

#include "muxhost/texts/speech.h"

namespace quorvel::muxhost {

namespace {

/// What came of a block that was handed over; nothing is known of one whose array was refused.
std::optional<BlockState> StateOfSent(const Exchange& exchange, Byte block) {
  if (exchange.ended && exchange.unanswered == block) return BlockState::kFailed;
  if (!exchange.read_back) return BlockState::kSent;
  const auto& differ = exchange.read_back->differ;
  if (std::find(differ.begin(), differ.end(), block) != differ.end()) return BlockState::kFailed;
  if (exchange.array_bytes > 0 && !exchange.array_taken) return std::nullopt;
  return BlockState::kVerified;
}

}  // namespace

const char* NameOf(BlockState state) {
  constexpr std::array<const char*, kBlockStates> kNames{
      ToSay("untouched"), ToSay("changed"), ToSay("sent"), ToSay("verified"), ToSay("failed")};
  return kNames.at(static_cast<std::size_t>(state));
}

void BlockStates::Forget() {
  listed_.clear();
  differing_.clear();
  sent_.clear();
}

void BlockStates::SetChanges(std::span<const Byte> listed, std::set<Byte> differing) {
  listed_ = {listed.begin(), listed.end()};
  differing_ = std::move(differing);
}

void BlockStates::Follow(const Exchange& exchange) {
  if (exchange.arrived) sent_.clear();
  for (const auto& [block, bytes] : exchange.sent_blocks) {
    const auto state = StateOfSent(exchange, block);
    if (state) {
      sent_[block] = *state;
    } else {
      sent_.erase(block);
    }
  }
}

BlockState BlockStates::Of(Byte block) const {
  const auto sent = sent_.find(block);
  const bool verified = sent != sent_.end() && sent->second == BlockState::kVerified;
  if (sent != sent_.end() && !verified) return sent->second;
  if (differing_.contains(block)) return BlockState::kChanged;
  if (verified) return BlockState::kVerified;
  return listed_.contains(block) ? BlockState::kChanged : BlockState::kUntouched;
}

std::vector<Byte> BlockStates::Unwritten() const {
  std::set<Byte> blocks = differing_;
  for (const Byte block : listed_) {
    if (Of(block) != BlockState::kVerified) blocks.insert(block);
  }
  return {blocks.begin(), blocks.end()};
}

std::vector<Byte> BlockStates::In(BlockState state) const {
  std::set<Byte> blocks = differing_;
  blocks.insert(listed_.begin(), listed_.end());
  for (const auto& [block, unused] : sent_) blocks.insert(block);
  std::erase_if(blocks, [&](Byte block) { return Of(block) != state; });
  return {blocks.begin(), blocks.end()};
}

}  // namespace quorvel::muxhost
