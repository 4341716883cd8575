#include "core/record/cls_email_notify.h"

namespace quorvel {

namespace {

constexpr std::array kFirstBlockOfAddress = {201, 207, 220};

bool IsAddress(int address) {
  return address >= 0 && address < static_cast<int>(kFirstBlockOfAddress.size());
}

}  // namespace

int clsEmailNotify::FirstBlock(int address) {
  return kFirstBlockOfAddress.at(static_cast<std::size_t>(address));
}

clsEmailNotify::Halves clsEmailNotify::Split(std::string_view address) {
  const auto at = address.find('@');
  if (at == std::string_view::npos) return {};
  return {address.substr(0, at), address.substr(at + 1)};
}

BlockText clsEmailNotify::BlkStrInit(int block) const {
  const auto index = TextIndex(block);
  return index ? texts(*index) : BlockText();
}

void clsEmailNotify::BlkStrInit(int block, const BlockText& text) {
  if (const auto index = TextIndex(block)) texts(*index, text);
}

std::string clsEmailNotify::EmailString(int address) const {
  if (!IsAddress(address)) return {};
  const auto half = [this](int first) {
    std::string text;
    for (int i = 0; i < kBlocksPerHalf; ++i) text += std::string_view(BlkStrInit(first + i));
    return text;
  };
  const std::string local = half(FirstBlock(address));
  const std::string domain = half(FirstBlock(address) + kBlocksPerHalf);
  return local.empty() || domain.empty() ? std::string() : local + "@" + domain;
}

void clsEmailNotify::EmailString(int address, std::string_view text) {
  if (!IsAddress(address)) return;
  const Halves halves = Split(text);
  PutEmailBlocks(FirstBlock(address), halves.local);
  PutEmailBlocks(FirstBlock(address) + kBlocksPerHalf, halves.domain);
}

void clsEmailNotify::PutEmailBlocks(int first_block, std::string_view text) {
  for (int i = 0; i < kBlocksPerHalf; ++i) {
    const BlockText piece(text);
    text.remove_prefix(std::string_view(piece).size());
    // Blocks that become empty are stored without listing them; the text before them lists the
    // half.
    if (i > 0 && piece.empty()) {
      texts[*TextIndex(first_block + i)].Load(piece);
    } else {
      BlkStrInit(first_block + i, piece);
    }
  }
}

}  // namespace quorvel
