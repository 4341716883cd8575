#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/bit_fields.h"
#include "core/setting.h"

namespace quorvel {

/// Alarm notification by e-mail and over TCP. Three e-mail addresses are kept as 18 text blocks of
/// up to 16 characters: three blocks before the "@" and three after it for each address.
class clsEmailNotify : public SettingOwner {
  /// A changed octet lists block 213 and marks its host in the change mask.
  struct HostBlock {
    Byte mask_bit;
    Setting<Byte, Untracked>* mask;
    void Changed(const SettingOwner& owner, int) const {
      if (!owner.Record(CommitAlarm, 213)) return;
      Byte bits = (*mask)();
      SetBit(bits, mask_bit, true);
      mask->Load(bits);
    }
  };

 public:
  static constexpr int kTextBlocks = 18;

  explicit clsEmailNotify(RecordEnvironment& env) : SettingOwner(env, "AlmEmailNotify") {}
  clsEmailNotify& operator=(const clsEmailNotify&) = default;
  bool operator==(const clsEmailNotify&) const = default;

  /// Kept for hosts that set it: always reads 0.
  [[nodiscard]] static Byte TimeZone() { return 0; }
  static void TimeZone(Byte /*ignored*/) {}

  /// Change mask: bit 0 SMTP server, 1 TCP host, 2 TCP backup host; 0 again once encoded.
  Setting<Byte, Untracked> AlmServerChange{*this, "AlmServerChange"};
  SettingArray<Byte, 2> TCPNotify{*this, "TCPNotify", {200, CommitAlarm}};
  Setting<std::int32_t> TCPPort{*this, "TCPPort", {200, CommitAlarm}};
  Setting<Byte> TCPInterval{*this, "TCPInterval", {200, CommitAlarm}};  ///< minutes, 0 at once
  /// IPv4 octets, first octet at index 0.
  SettingArray<Byte, 4, HostBlock> TCPHost{*this, "TCPHost", {1, &AlmServerChange}};
  SettingArray<Byte, 4, HostBlock> TCPBkUpHost{*this, "TCPBkUpHost", {2, &AlmServerChange}};
  SettingArray<Byte, 4, HostBlock> SMTPServer{*this, "SMTPServer", {0, &AlmServerChange}};
  Setting<std::int32_t> SMTPPort{*this, "SMTPPort", {200, CommitAlarm}};
  SettingArray<Byte, 2> EmailNotify{*this, "EmailNotify", {200, CommitAlarm}};

  /// Place of text block `block` (201 to 212, 220 to 225) among the 18; nothing for other blocks.
  [[nodiscard]] static std::optional<int> TextIndex(int block);

  /// The text of a text block; empty for other blocks.
  [[nodiscard]] const std::string& BlkStrInit(int block) const;
  /// Stores the text of a text block; a change under CommitAlarm lists the three blocks of its
  /// half.
  void BlkStrInit(int block, std::string_view text);
  /// Stores without tracking: for the decoder.
  void LoadText(int block, std::string_view text);

  /// Address 0 to 2, "local@domain"; empty unless both halves hold text.
  [[nodiscard]] std::string EmailString(int address) const;
  /// Splits at the first "@"; halves beyond 48 characters are cut. Without "@" both become empty.
  void EmailString(int address, std::string_view text);

 private:
  void PutEmailBlocks(int first_block, std::string_view text);

  std::array<std::string, kTextBlocks> texts_;
};

}  // namespace quorvel
