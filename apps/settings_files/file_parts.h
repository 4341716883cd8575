#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "quorvel/combined_array.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::files {

using ByteSpan = std::span<const std::uint8_t>;

/// A settings file by its parts. It has neither mark nor version: its kind is told by what it says
/// of its own length.
struct FileParts {
  bool combined = false;
  ComboHeader header;  ///< of a combined array
  ByteSpan image;      ///< the blocks, as far as they are here

  /// Byte `at` (from 0) of block `block` (from 1); nothing where the file ends before it.
  [[nodiscard]] std::optional<int> ByteAt(int block, int at) const;
};

/// The parts of these bytes, which must stay. A combined array begins with the length of its
/// header, 13 in 16 bits, where a plain image has a title; and it is none if its 16th byte counts
/// just as many blocks as it has, unless all that its header states agrees as well.
[[nodiscard]] FileParts PartsOf(ByteSpan file);

/// Who a configuration says that it belongs to.
struct NamedDevice {
  int cameras = 0;
  int model = 0;     ///< without bit 7, by which a device marks it
  std::string name;  ///< in UTF-8, without zero bytes and blanks at its end
  bool operator==(const NamedDevice&) const = default;
};

/// Nothing where the image ends before it says so.
[[nodiscard]] std::optional<NamedDevice> DeviceOf(const FileParts& parts);

/// The device's variant, a character, in UTF-8; nothing where the image has none.
[[nodiscard]] std::optional<std::string> VariantOf(const FileParts& parts);

/// "6 Triplex NTSC", "77 unknown".
[[nodiscard]] std::string ModelInWords(int model);

/// A HostCommId under which nothing is locked: that of an interactive host locks the keyboard of
/// some models in what it loads.
inline constexpr std::uint8_t kNotInteractive = 1;

/// What FillComboInfo takes, of the header of a combined array: sizes of macros and blocks, and the
/// firmware version, which the header holds in the same order.
inline constexpr std::size_t kSizesAt = 6;
inline constexpr std::size_t kSizesLength = 7;

/// Loads a settings file into a control to which no device was stated, as what it is, and as it is.
/// The control's HostCommId is kNotInteractive after that.
[[nodiscard]] LoadAnswer LoadAsItIs(MainMenuCtrl& control, ByteSpan file, const FileParts& parts);

}  // namespace quorvel::files
