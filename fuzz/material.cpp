#include "fuzz/material.h"

#include <array>
#include <memory>

#include "core/codec.h"
#include "quorvel/combined_array.h"
#include "quorvel/default_images.h"

namespace quorvel::fuzz {

BlockImage TakeImage(ByteSource& in, bool raw) {
  const Byte blocks = in.Next();
  const Byte cameras = in.Next();
  const Byte code = in.Next();
  const auto bytes = in.Rest();
  BlockImage image({bytes.begin(), bytes.end()});
  if (raw) return image;
  image.ResizeBlocks(blocks);
  if (blocks > 0) image.Block(1)[kBlockCountByte] = blocks;
  if (blocks >= kIdentityBlock) {
    image.Block(kIdentityBlock)[0] = static_cast<Byte>(cameras % (kMostCameras + 1));
    image.Block(kIdentityBlock)[1] = code;
  }
  return image;
}

const BlockImage& DefaultImage(int which) {
  static const std::array images = {LoadDefaultImage(104), LoadDefaultImage(301),
                                    LoadDefaultImage(401)};
  return images.at(static_cast<std::size_t>(which));
}

std::vector<Byte> CombinedBytes(const BlockImage& image, int macro_size, int macro_count) {
  ComboHeader header;
  header.HdrLen = ComboHeader::kSize;
  header.DataLen = static_cast<std::uint16_t>(image.Size());
  header.MacroLen = static_cast<std::uint16_t>(macro_size * macro_count);
  header.MacroRecSize = static_cast<std::uint16_t>(macro_size);
  header.MacroCount = static_cast<Byte>(macro_count);
  header.BlockCount = static_cast<std::uint16_t>(image.Size() / kBlockSize);
  header.ExtraA = 5;
  header.ExtraB = 6;
  const auto array = CombinedArray::Build(header, image);
  std::vector<Byte> bytes(array.Bytes().begin(), array.Bytes().end());
  const auto macros = bytes.begin() + header.HdrLen + header.DataLen;
  for (auto byte = macros; byte != bytes.end(); ++byte) *byte = 'M';
  return bytes;
}

bool DecodeAlone(BlockImage& image) {
  RecordEnvironment env;
  const auto rec = std::make_unique<MuxData>(env);
  try {
    DecodeImage(image, env, *rec);
  } catch (const ImageError&) {
    return false;
  }
  return true;
}

}  // namespace quorvel::fuzz
