#include "core/record/cls_email_notify.h"

namespace quorvel {

namespace {

constexpr std::array kFirstBlockOfAddress = {201, 207, 220};

bool IsAddress(int address) {
  return address >= 0 && address < static_cast<int>(kFirstBlockOfAddress.size());
}

int FirstBlock(int address) { return kFirstBlockOfAddress[static_cast<std::size_t>(address)]; }

}  // namespace

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
  const auto at = text.find('@');
  const bool split = at != std::string_view::npos;
  PutEmailBlocks(FirstBlock(address), split ? text.substr(0, at) : std::string_view());
  PutEmailBlocks(FirstBlock(address) + kBlocksPerHalf,
                 split ? text.substr(at + 1) : std::string_view());
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
