#include "muxhost/window/zone_cells.h"

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace quorvel::muxhost {

namespace {

constexpr int kBits = 8;

std::size_t PlaceOf(int row, int column) {
  constexpr int kSide = ZoneCells::kSide;
  if (row < 0 || row >= kSide || column < 0 || column >= kSide) {
    throw std::out_of_range("no such zone cell");
  }
  return static_cast<std::size_t>((row * kSide + column) / kBits);
}

Byte MaskOf(int column) { return static_cast<Byte>(0x80 >> (column % kBits)); }

}  // namespace

ZoneCells::ZoneCells(std::span<const Byte> bytes) {
  std::copy_n(bytes.begin(), std::min(bytes.size(), bytes_.size()), bytes_.begin());
}

bool ZoneCells::Active(int row, int column) const {
  return (bytes_.at(PlaceOf(row, column)) & MaskOf(column)) != 0;
}

void ZoneCells::Set(int row, int column, bool active) {
  Byte& byte = bytes_.at(PlaceOf(row, column));
  byte = static_cast<Byte>(active ? byte | MaskOf(column) : byte & ~MaskOf(column));
}

void ZoneCells::Fill(bool active) { bytes_.fill(active ? Byte{0xFF} : Byte{0}); }

int ZoneCells::ActiveCount() const {
  int count = 0;
  for (const Byte byte : bytes_) count += std::popcount(byte);
  return count;
}

}  // namespace quorvel::muxhost
