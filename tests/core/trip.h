#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include "core/codec.h"

namespace quorvel {

/// Bytes of blocks `first` to `last` that decoding and encoding may change, marked with x, on model
/// codes `least` to `most`. Everywhere else a byte is left alone, or comes back as it was.
struct Changing {
  int first, last;
  std::string_view bytes;
  int least = 0, most = 127;
};

inline constexpr Changing kChanging[] = {
    // Packed bytes are rebuilt: bits of absent cameras and bits without meaning become 0.
    {33, 33, "xx..xx..xx..xx.."},
    {44, 44, "xxxxxxxx........"},
    {44, 44, "........xxxxxxxx", 1},
    {45, 45, "xxxx............", 14, 15},
    {45, 45, "............x...", 6},
    {47, 47, "xxxxxxxx........", 0, 5},
    {48, 49, "xx..xx..xx......"},
    {50, 50, "xxxxxxxx........"},
    {51, 51, "xxxx....xxxx...."},
    {56, 56, "xxxxxxxxxxxxxxxx", 2},
    {59, 59, "x.......x......."},
    {60, 60, "......xx........"},
    {61, 61, "......xx........"},
    {61, 61, ".....x.........."},  // of the bytes 100 to 159 each year has another
    {61, 61, "...............x", 6},
    {149, 149, "xxxx....xxxx...."},
    {184, 184, "xx..xx.........."},
    {184, 184, "........xx......", 6},
    // Titles lose the blanks at both ends, texts what follows their end.
    {1, 16, "xxxxxxxxxxxxx..."},
    {201, 212, "xxxxxxxxxxxxxxxx"},
    {220, 225, "xxxxxxxxxxxxxxxx"},
    // Nothing has changed since the image came.
    {213, 213, "x..............."},
    {217, 217, "x..............."},
    // Values that the device cannot mean.
    {34, 34, "xxxxxxxxxxxxxxxx"},
    {59, 59, ".x.............."},
    {59, 59, ".............x..", 1},
    {64, 68, "xxxxxxxxxxxxxxxx"},
    {69, 84, "x..............."},
    // Rates of 0 that block 219 marks are 99.
    {58, 58, "xxxxxxxxxxxxxxxx", 2},
    {62, 63, "xxxxxxxxxxxxxxxx", 2},
    {59, 59, ".......x........"},
};

inline bool MayChange(int block, std::size_t byte, int code) {
  return std::ranges::any_of(kChanging, [=](const Changing& it) {
    return it.first <= block && block <= it.last && it.least <= code && code <= it.most &&
           it.bytes[byte] == 'x';
  });
}

/// Sends an image through both directions: what must hold and does not, or nothing. Throws
/// ImageError when it cannot be decoded.
inline std::string TripFault(const BlockImage& original, bool one_by_one) {
  BlockImage image = original;
  RecordEnvironment env;
  const auto rec = std::make_unique<MuxData>(env);
  DecodeImage(image, env, *rec);
  if (one_by_one) {
    for (int block = 255; block >= 1; --block) EncodeBlock(block, image, env, *rec);
  } else {
    EncodeImage(image, env, *rec);
  }
  if (image.Size() != original.Size()) return "another size";
  if (env.blocks.BlkSavIdx() != 0) return "a block is listed";
  const auto before = original.Bytes();
  const auto after = image.Bytes();
  for (std::size_t i = 0; i < before.size(); ++i) {
    const int block = static_cast<int>(i / kBlockSize) + 1;
    if (before[i] == after[i] || MayChange(block, i % kBlockSize, env.identity.ModelCode)) continue;
    return "block " + std::to_string(block) + " byte " + std::to_string(i % kBlockSize) + ": " +
           std::to_string(before[i]) + " becomes " + std::to_string(after[i]);
  }
  const auto again = std::make_unique<MuxData>(env);
  DecodeImage(image, env, *again);
  // What no byte can say: monitors C to E without a matrix.
  for (int i = env.identity.MatrixModel != 0 ? 5 : 2; i < 5; ++i) {
    rec->TDInfo.TDDisplay(i, 0);
    rec->TitleDisplay(i, 0);
  }
  return *again == *rec ? "" : "what was encoded is decoded as something else";
}

}  // namespace quorvel
