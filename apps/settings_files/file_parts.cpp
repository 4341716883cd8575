#include "settings_files/file_parts.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "quorvel/code_page.h"
#include "quorvel/identity.h"

namespace quorvel::files {

namespace {

constexpr std::size_t kCountAt = kBlockCountByte;
constexpr int kModelMask = 0x7F;
constexpr int kNameAt = 2;

bool CountAgrees(ByteSpan file) {
  return file.size() > kCountAt && file.size() == std::size_t{file[kCountAt]} * kBlockSize;
}

/// Bytes of the device as text, zeros left out. A terminal may take control characters for
/// commands.
std::string Printable(std::span<const std::uint8_t> bytes) {
  std::string printable;
  for (const std::uint8_t byte : bytes) {
    if (byte == 0) continue;
    const std::string character = CodePageToUtf8(std::string(1, static_cast<char>(byte)));
    const auto code = static_cast<std::uint8_t>(character.back());
    const bool is_control = character.size() == 1 ? code < ' ' || code == 0x7F
                                                  : character.front() == '\xC2' && code < 0xA0;
    printable += is_control ? "?" : character;
  }
  return printable;
}

/// Why a combined array has no image, as a sentence; empty when it has one.
std::string LackOfImage(ByteSpan file, const FileParts& parts) {
  if (parts.header.Agrees() && parts.image.size() == parts.header.DataLen) return {};
  try {
    CombinedArray::Parse(file, ComboHeader()).RequireImage();
  } catch (const ImageError& error) {
    std::string why = std::string(error.what()) + '.';
    why.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(why.front())));
    return why;
  }
  return {};
}

}  // namespace

std::optional<int> FileParts::ByteAt(int block, int at) const {
  const auto place = static_cast<std::size_t>((block - 1) * kBlockSize + at);
  if (place >= image.size()) return std::nullopt;
  return image[place];
}

FileParts PartsOf(ByteSpan file) {
  FileParts parts{false, {}, file};
  if (file.size() < ComboHeader::kSize) return parts;
  const ComboHeader header =
      CombinedArray::Parse(file.first(ComboHeader::kSize), ComboHeader()).Header();
  if (header.HdrLen != ComboHeader::kSize) return parts;
  const bool exact =
      header.Agrees() && file.size() == static_cast<std::size_t>(header.TotalLength());
  if (!exact && CountAgrees(file)) return parts;
  const auto blocks = file.subspan(std::min<std::size_t>(header.HdrLen, file.size()));
  return {true, header, blocks.first(std::min<std::size_t>(header.DataLen, blocks.size()))};
}

std::optional<NamedDevice> DeviceOf(const FileParts& parts) {
  if (!parts.ByteAt(kIdentityBlock, kBlockSize - 1)) return std::nullopt;
  const auto block = parts.image.subspan((kIdentityBlock - 1) * kBlockSize, kBlockSize);
  std::string name = Printable(block.subspan(kNameAt));
  name.erase(name.find_last_not_of(' ') + 1);
  return NamedDevice{block[0], block[1] & kModelMask, std::move(name)};
}

std::optional<std::string> VariantOf(const FileParts& parts) {
  constexpr int kVariantBlock = 183;
  constexpr int kVariantAt = 7;
  const auto byte = parts.ByteAt(kVariantBlock, kVariantAt);
  if (!byte || *byte == 0) return std::nullopt;
  const auto character = static_cast<std::uint8_t>(*byte);
  return Printable({&character, 1});
}

std::string ModelInWords(int model) {
  const std::string_view text = ModelText(model);
  return std::to_string(model) + ' ' + std::string(text.empty() ? "unknown" : text);
}

LoadAnswer LoadAsItIs(MainMenuCtrl& control, ByteSpan file, const FileParts& parts) {
  if (parts.combined) {
    // The control goes by the length alone, and a part of an array is as short as a plain image. Of
    // a whole one it must know how many blocks there are.
    if (std::string why = LackOfImage(file, parts); !why.empty()) return {false, std::move(why)};
    control.FillComboInfo(file.subspan(kSizesAt, kSizesLength));
  }
  control.HostCommId(kNotInteractive);
  return control.LoadSettings(file);
}

}  // namespace quorvel::files
