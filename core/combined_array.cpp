#include "quorvel/combined_array.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/byte_order.h"

namespace quorvel {

namespace {

/// A field of the header: where it is, and which it is.
struct WordField {
  std::size_t at;
  std::uint16_t ComboHeader::*member;
};
struct ByteField {
  std::size_t at;
  Byte ComboHeader::*member;
};

constexpr WordField kDataLen{2, &ComboHeader::DataLen};
constexpr WordField kMacroLen{4, &ComboHeader::MacroLen};
constexpr std::array kWords{WordField{0, &ComboHeader::HdrLen}, kDataLen, kMacroLen,
                            WordField{6, &ComboHeader::MacroRecSize},
                            WordField{9, &ComboHeader::BlockCount}};
constexpr std::array kBytes{ByteField{8, &ComboHeader::MacroCount},
                            ByteField{11, &ComboHeader::ExtraA},
                            ByteField{12, &ComboHeader::ExtraB}};

void PutWord(std::span<Byte> bytes, const WordField& field, std::uint16_t value) {
  if (field.at + 2 > bytes.size()) return;
  ToDeviceOrder(bytes.subspan(field.at).first<2>(), value);
}

}  // namespace

CombinedArray CombinedArray::Parse(std::span<const Byte> bytes, const ComboHeader& previous) {
  CombinedArray array;
  array.header_ = previous;
  for (const WordField& field : kWords) {
    if (field.at + 2 > bytes.size()) continue;
    array.header_.*field.member = FromDeviceOrder(bytes.subspan(field.at).first<2>());
  }
  for (const ByteField& field : kBytes) {
    if (field.at < bytes.size()) array.header_.*field.member = bytes[field.at];
  }
  array.bytes_.assign(bytes.begin(), bytes.end());
  return array;
}

CombinedArray CombinedArray::Build(const ComboHeader& header, const BlockImage& image) {
  CombinedArray array;
  array.header_ = header;
  array.bytes_.resize(static_cast<std::size_t>(header.TotalLength()));
  for (const WordField& field : kWords) PutWord(array.bytes_, field, header.*field.member);
  for (const ByteField& field : kBytes) {
    if (field.at < array.bytes_.size()) array.bytes_[field.at] = header.*field.member;
  }
  array.PutImage(image);
  return array;
}

std::span<const Byte> CombinedArray::Bytes() const {
  const auto counted = static_cast<std::size_t>(header_.TotalLength());
  return std::span(bytes_).first(std::min(counted, bytes_.size()));
}

bool CombinedArray::HoldsImage() const {
  const auto needed = static_cast<std::size_t>(header_.HdrLen + header_.DataLen);
  return header_.Agrees() && bytes_.size() >= needed;
}

bool CombinedArray::HoldsMacros() const {
  return HoldsImage() && bytes_.size() >= static_cast<std::size_t>(header_.TotalLength());
}

void CombinedArray::RequireImage() const {
  if (HoldsImage()) return;
  const auto number = [](auto value) { return std::to_string(value); };
  if (bytes_.size() < ComboHeader::kSize) {
    throw ImageError("this is no combined array: it has " + number(bytes_.size()) +
                     " bytes, and its header alone takes 13");
  }
  if (header_.HdrLen < ComboHeader::kSize) {
    throw ImageError("this is no combined array: its header states a length of " +
                     number(header_.HdrLen) + " bytes");
  }
  if (!header_.Agrees()) {
    throw ImageError("the combined array contradicts itself: it states " +
                     number(header_.BlockCount) + " blocks, but " + number(header_.DataLen) +
                     " bytes of block data");
  }
  throw ImageError("the combined array is cut short: it has " + number(bytes_.size()) + " of " +
                   number(header_.TotalLength()) + " bytes");
}

BlockImage CombinedArray::Image() const {
  RequireImage();
  const auto data = std::span(bytes_).subspan(header_.HdrLen, header_.DataLen);
  return BlockImage({data.begin(), data.end()});
}

bool CombinedArray::Carries(const BlockImage& image) const {
  return HoldsImage() && header_.BlockCount >= image.BlkCountOrZero();
}

std::span<Byte> CombinedArray::Data() {
  if (header_.HdrLen < ComboHeader::kSize || header_.HdrLen > bytes_.size()) return {};
  const auto rest = std::span(bytes_).subspan(header_.HdrLen);
  return rest.first(std::min<std::size_t>(header_.DataLen, rest.size()));
}

void CombinedArray::PutImage(const BlockImage& image) {
  const auto data = Data();
  const auto bytes = image.Bytes().first(std::min(image.Size(), data.size()));
  std::copy(bytes.begin(), bytes.end(), data.begin());
}

void CombinedArray::PutBlock(const BlockImage& image, int number) {
  const auto data = Data();
  const auto at = static_cast<std::size_t>(number - 1) * kBlockSize;
  if (!image.Holds(number) || at + kBlockSize > data.size()) return;
  const auto block = image.Block(number);
  std::copy(block.begin(), block.end(), data.begin() + static_cast<std::ptrdiff_t>(at));
}

void CombinedArray::PutByte(int number, std::size_t at, Byte value) {
  const auto data = Data();
  const auto place = static_cast<std::size_t>(number - 1) * kBlockSize + at;
  if (place < data.size()) data[place] = value;
}

std::vector<Byte> CombinedArray::Outgoing(bool include_data, bool include_macros) const {
  const auto all = Bytes();
  std::vector<Byte> bytes(all.begin(), all.end());
  if (!include_data) PutWord(bytes, kDataLen, 0);
  if (!include_macros || !HoldsMacros()) PutWord(bytes, kMacroLen, 0);
  return bytes;
}

}  // namespace quorvel
