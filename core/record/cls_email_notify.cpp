#include "core/record/cls_email_notify.h"

namespace quorvel {

namespace {

constexpr int kBlocksPerHalf = 3;
constexpr std::size_t kTextBlockLength = 16;
constexpr std::array kFirstBlockOfAddress = {201, 207, 220};

bool IsAddress(int address) {
  return address >= 0 && address < static_cast<int>(kFirstBlockOfAddress.size());
}

int FirstBlock(int address) { return kFirstBlockOfAddress[static_cast<std::size_t>(address)]; }

}  // namespace

std::optional<int> clsEmailNotify::TextIndex(int block) {
  if (block >= 201 && block <= 212) return block - 201;
  if (block >= 220 && block <= 225) return block - 220 + 12;
  return std::nullopt;
}

const std::string& clsEmailNotify::BlkStrInit(int block) const {
  static const std::string none;
  const auto index = TextIndex(block);
  return index ? texts_[static_cast<std::size_t>(*index)] : none;
}

void clsEmailNotify::BlkStrInit(int block, std::string_view text) {
  const auto index = TextIndex(block);
  if (!index) return;
  if (text != BlkStrInit(block)) {
    const int first = block - *index % kBlocksPerHalf;
    for (int i = 0; i < kBlocksPerHalf; ++i) Record(CommitAlarm, first + i);
  }
  LoadText(block, text);
}

void clsEmailNotify::LoadText(int block, std::string_view text) {
  if (const auto index = TextIndex(block)) texts_[static_cast<std::size_t>(*index)].assign(text);
}

std::string clsEmailNotify::EmailString(int address) const {
  if (!IsAddress(address)) return {};
  const auto half = [this](int first) {
    return BlkStrInit(first) + BlkStrInit(first + 1) + BlkStrInit(first + 2);
  };
  const std::string local = half(FirstBlock(address));
  const std::string domain = half(FirstBlock(address) + kBlocksPerHalf);
  return local.empty() || domain.empty() ? std::string() : local + "@" + domain;
}

void clsEmailNotify::EmailString(int address, std::string_view text) {
  if (!IsAddress(address)) return;
  const auto at = text.find('@');
  const bool split = at != std::string_view::npos;
  PutEmailBlocks(FirstBlock(address), split ? text.substr(0, at) : std::string_view());
  PutEmailBlocks(FirstBlock(address) + kBlocksPerHalf,
                 split ? text.substr(at + 1) : std::string_view());
}

void clsEmailNotify::PutEmailBlocks(int first_block, std::string_view text) {
  for (int i = 0; i < kBlocksPerHalf; ++i) {
    const auto piece = text.substr(0, kTextBlockLength);
    text.remove_prefix(piece.size());
    // Blocks that become empty are not listed for that: devices read a half up to its first short
    // block.
    if (i > 0 && piece.empty()) {
      LoadText(first_block + i, {});
    } else {
      BlkStrInit(first_block + i, piece);
    }
  }
}

}  // namespace quorvel
