#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/record/meanings/alarms.h"
#include "core/setting.h"

namespace quorvel {

/// A text of up to 16 characters, as one block holds it. Longer texts are cut.
class BlockText {
 public:
  static constexpr std::size_t kMost = 16;
  BlockText() = default;
  BlockText(std::string_view text)  // NOLINT: converts by design
      : length_(static_cast<Byte>(std::min(text.size(), kMost))) {
    std::copy_n(text.begin(), length_, characters_.begin());
  }
  operator std::string_view() const { return {characters_.data(), length_}; }  // NOLINT: converts
  [[nodiscard]] bool empty() const { return length_ == 0; }
  bool operator==(const BlockText&) const = default;

 private:
  std::array<char, kMost> characters_{};
  Byte length_ = 0;
};

/// Alarm notification by e-mail and over TCP. Three e-mail addresses are kept as 18 text blocks:
/// three blocks before the "@" and three after it for each address.
class clsEmailNotify : public SettingOwner {
 public:
  static constexpr int kTextBlocks = 18;
  static constexpr int kBlocksPerHalf = 3;
  static constexpr std::size_t kLongestHalf = kBlocksPerHalf * BlockText::kMost;

  explicit clsEmailNotify(RecordEnvironment& env) : SettingOwner(env, "AlmEmailNotify") {}
  clsEmailNotify& operator=(const clsEmailNotify&) = default;
  bool operator==(const clsEmailNotify&) const = default;

  /// Kept for hosts that set it: always reads 0.
  [[nodiscard]] static Byte TimeZone() { return 0; }
  static void TimeZone(Byte /*ignored*/) {}

  /// Change mask: bit 0 SMTP server, 1 TCP host, 2 TCP backup host; 0 again once sent.
  Setting<"AlmServerChange", Byte> AlmServerChange{*this};
  SettingArray<"TCPNotify", Byte, 2, In<200, CommitAlarm>> TCPNotify{*this};
  Setting<"TCPPort", std::int32_t, In<200, CommitAlarm>, TcpPort> TCPPort{*this};
  /// 0 at once.
  Setting<"TCPInterval", Byte, In<200, CommitAlarm>, TcpInterval> TCPInterval{*this};
  template <int bit>
  struct Host {
    static void Changed(SettingOwner& owner, int) {
      auto& mask = static_cast<clsEmailNotify&>(owner).AlmServerChange;
      RecordInMask(owner, CommitAlarm, 213, mask, bit);
    }
  };
  /// IPv4 octets, first octet at index 0.
  SettingArray<"TCPHost", Byte, 4, Host<1>> TCPHost{*this};
  SettingArray<"TCPBkUpHost", Byte, 4, Host<2>> TCPBkUpHost{*this};
  SettingArray<"SMTPServer", Byte, 4, Host<0>> SMTPServer{*this};
  Setting<"SMTPPort", std::int32_t, In<200, CommitAlarm>> SMTPPort{*this};
  SettingArray<"EmailNotify", Byte, 2, In<200, CommitAlarm>> EmailNotify{*this};

  /// Place of text block `block` (201 to 212, 220 to 225) among the 18; nothing for other blocks.
  [[nodiscard]] static constexpr std::optional<int> TextIndex(int block) {
    if (block >= 201 && block <= 212) return block - 201;
    if (block >= 220 && block <= 225) return block - 220 + 12;
    return std::nullopt;
  }
  /// The block of text `index` (0 to 17).
  [[nodiscard]] static constexpr int TextBlock(int index) {
    return index < 12 ? 201 + index : 220 + index - 12;
  }

  /// The text of a text block; empty for other blocks.
  [[nodiscard]] BlockText BlkStrInit(int block) const;
  /// Stores the text of a text block; a change under CommitAlarm lists the three blocks of its
  /// half.
  void BlkStrInit(int block, const BlockText& text);

  /// Address 0 to 2, "local@domain"; empty unless both halves hold text.
  [[nodiscard]] std::string EmailString(int address) const;
  /// Splits at the first "@"; halves beyond 48 characters are cut. Without "@" both become empty.
  void EmailString(int address, std::string_view text);

  /// An address as it is stored: what stands before its first "@" and after it, of which the first
  /// kLongestHalf characters are kept. Both are empty without "@".
  struct Halves {
    std::string_view local, domain;
  };
  [[nodiscard]] static Halves Split(std::string_view address);
  /// The first of the six blocks of address 0 to 2.
  [[nodiscard]] static int FirstBlock(int address);

 private:
  struct Half {
    static void Changed(SettingOwner& owner, int index) {
      const int first = TextBlock(index - index % kBlocksPerHalf);
      for (int i = 0; i < kBlocksPerHalf; ++i) owner.Record(CommitAlarm, first + i);
    }
  };
  void PutEmailBlocks(int first_block, std::string_view text);

 public:
  /// The texts by place, for the block layouts.
  SettingArray<"BlkStrInit", BlockText, kTextBlocks, Half> texts{*this};
};

}  // namespace quorvel
