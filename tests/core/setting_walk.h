#pragma once

#include <cstdint>

#include "core/layout/blocks.h"

namespace quorvel {

/// A pass over the layouts that hands each setting of a block to a visitor, which has
/// `Setting(block, item)` and `Device(name, value)`. It sees what the encoder writes, or else what
/// the decoder reads; of long runs every `step`-th item. The words are those of the other passes.
template <class Visitor, bool writing>
class SettingPass {
 public:
  static constexpr bool kReading = false;
  static constexpr bool kWriting = writing;

  SettingPass(Visitor& visitor, int block, int cameras, int step)
      : visitor_(visitor), block_(block), cameras_(cameras), step_(step) {}

  void Byte(int, auto&& item) { visitor_.Setting(block_, item); }
  void ByteBelow(int, int, auto&& item) { Byte(0, item); }
  void Coded(int, int, auto& item, auto, auto) { Byte(0, item); }
  void CodedBytes(int, int count, int, auto items, auto, auto) { Bytes(0, count, items); }
  void ChangeMask(int, auto& item) { Byte(0, item); }
  void Elsewhere(int, int, auto&) {}
  void Device(int, std::uint8_t& value, const char* name) { visitor_.Device(name, value); }
  void Rebuilt(int, int) {}
  void Flag(int, auto& item) { Byte(0, item); }
  void BitFlags(int, auto&... items) { (Byte(0, items), ...); }
  template <class Array>
  void Bits(int, Array& array, int written = Array::kSize) {
    Bytes(0, writing ? written : Array::kSize, layout::Each(array));
  }
  void CameraBits(int, auto items, layout::Sense = {}) { CameraBytes(items); }
  void CameraPairs(int, auto items) { CameraBytes(items); }
  void CameraNibbles(int, auto items) { CameraBytes(items); }
  void CameraBytes(auto items) { Bytes(0, cameras_, items); }
  void Bytes(int, int count, auto items) {
    for (int k = 0; k<count; k += count> step_ ? step_ : 1) Byte(0, items[k]);
  }
  void Word(int, auto& item) { Byte(0, item); }
  void PaddedText(int, int, auto& item) { Byte(0, item); }
  void ZeroEndedText(int, int, auto&& item) { Byte(0, item); }
  void CameraMarks(int, auto, int) {}
  void Mark(int, auto&, int) {}

 private:
  Visitor& visitor_;
  int block_, cameras_, step_;
};

template <class Visitor, bool writing>
struct SettingWalk {
  Visitor& visitor;
  int cameras;
  int step = 1;
  void Block(int number, const auto& visit) {
    SettingPass<Visitor, writing> pass(visitor, number, cameras, step);
    visit(pass);
  }
  void Blocks(int first, int count, const auto& visit) {
    for (int i = 0; i < count; ++i) {
      Block(first + i, [&](auto& pass) { visit(pass, i); });
    }
  }
};

}  // namespace quorvel
