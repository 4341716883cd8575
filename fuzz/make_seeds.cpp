// Writes the first inputs of every target to fuzz/corpus/<target>, afresh: real images, arrays,
// files and sequences of calls. Its argument is the folder of the corpora.

#include <iostream>
#include <string>

#include "fuzz/call_seeds.h"
#include "fuzz/corpus.h"
#include "fuzz/material.h"

namespace quorvel::fuzz {
namespace {

BlockImage Resized(const BlockImage& image, int blocks) {
  BlockImage resized = image;
  resized.ResizeBlocks(blocks);
  resized.Block(1)[kBlockCountByte] = static_cast<Byte>(blocks);
  return resized;
}

void ImageSeeds(const Corpus& corpus) {
  // Mode bits: door, 3 bits; raw; one by one; upload.
  constexpr Byte kOneByOne = 0x10;
  constexpr Byte kWholeThenUpload = 5 | 0x20;
  constexpr Byte kByBlocks = 7;
  for (int which = 0; which < 3; ++which) {
    const auto input = ImageInput(DefaultImage(which));
    const auto name = "default" + std::to_string(which);
    corpus.Add(name + "-trip", Joined({0}, input));
    corpus.Add(name + "-by-blocks", Joined({kByBlocks}, input));
  }
  const auto longest = ImageInput(Resized(DefaultImage(2), 225));
  corpus.Add("225-trip-one-by-one", Joined({kOneByOne}, longest));
  corpus.Add("225-whole", Joined({kWholeThenUpload}, longest));
  corpus.Add("255-trip", Joined({0}, ImageInput(Resized(DefaultImage(2), 255))));
  corpus.Add("short", {3, 3, 16, 6, 'S', 'H', 'O', 'R', 'T'});
}

/// FillComboInfo's bytes for an array.
std::vector<Byte> SizesOf(const std::vector<Byte>& array) {
  return {array[6], array[7], array[8], array[9], array[10], array[11], array[12]};
}

std::vector<Byte> CombinedInput(Byte mode, const std::vector<Byte>& clicks,
                                const std::vector<Byte>& array) {
  std::vector<Byte> padded = clicks;
  padded.resize(14);
  return Joined(Joined({mode}, SizesOf(array)), Joined(padded, array));
}

void CombinedSeeds(const Corpus& corpus) {
  const auto plain = CombinedBytes(DefaultImage(2), 0, 0);
  const auto macros = CombinedBytes(DefaultImage(2), 16, 8);
  const auto longest = CombinedBytes(Resized(DefaultImage(2), 225), 64, 16);
  const auto duplex = CombinedBytes(DefaultImage(1), 16, 4);
  const auto brief = CombinedBytes(Resized(DefaultImage(2), 3), 4, 2);
  // Mode bits: save, edit, cut array afterwards, whole-image host, identify first, image before,
  // fitting header. Clicks: 0 and 1 the boxes, 2 and 3 the options, 4 START.
  corpus.Add("save", CombinedInput(0x01, {}, plain));
  corpus.Add("macros-then-data-only", CombinedInput(0x00, {0, 4, 9, 9, 9, 9, 0}, macros));
  corpus.Add("macros-only", CombinedInput(0x00, {0, 1, 4}, macros));
  corpus.Add("listed-with-macros", CombinedInput(0x03, {0, 3, 4}, longest));
  corpus.Add("listed-block-by-block", CombinedInput(0x02, {3, 4}, duplex));
  corpus.Add("whole-image-host", CombinedInput(0x0A, {4}, duplex));
  corpus.Add("second-array-is-cut", CombinedInput(0x24, {4}, macros));
  corpus.Add("fitting", CombinedInput(0x43, {0, 4}, brief));
}

std::vector<Byte> FileInput(Byte mode, const std::vector<Byte>& stated,
                            const std::vector<Byte>& file) {
  std::vector<Byte> padded = stated;
  padded.resize(18);
  return Joined({mode, 0}, Joined(padded, file));
}

void SettingsFileSeeds(const Corpus& corpus) {
  // Mode bits: combined exchange, image before, whole-image host, edit, structured, send, same
  // device.
  for (int which = 0; which < 3; ++which) {
    const auto& image = DefaultImage(which);
    const std::vector<Byte> file(image.Bytes().begin(), image.Bytes().end());
    const auto array = CombinedBytes(image, 16, 8);
    const auto name = "default" + std::to_string(which);
    corpus.Add(name + "-plain", FileInput(0x60, {3, 4}, file));
    corpus.Add(name + "-edited", FileInput(0x08 | 0x10 | 0x60, {3, 4}, ImageInput(image)));
    corpus.Add(name + "-array", FileInput(0x61, SizesOf(array), array));
    corpus.Add(name + "-plain-for-arrays", FileInput(0x61, SizesOf(array), file));
  }
  const auto longest = CombinedBytes(Resized(DefaultImage(2), 225), 64, 16);
  corpus.Add("array-switches-exchange", FileInput(0x26, {}, longest));
  const auto image = ImageInput(Resized(DefaultImage(2), 225));
  corpus.Add("225-image", FileInput(0x16, {}, image));
}

}  // namespace
}  // namespace quorvel::fuzz

int main(int argc, char** argv) {
  using namespace quorvel::fuzz;
  if (argc != 2) {
    std::cerr << "usage: make_seeds FOLDER\n";
    return 1;
  }
  ImageSeeds(Corpus(argv[1], "fuzz_image"));
  CombinedSeeds(Corpus(argv[1], "fuzz_combined"));
  SettingsFileSeeds(Corpus(argv[1], "fuzz_settings_file"));
  CallSeeds(Corpus(argv[1], "fuzz_calls"));
  return 0;
}
