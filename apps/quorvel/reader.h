#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace quorvel::tool {

/// The operand that stands for standard input or output.
inline constexpr const char* kStandard = "-";

/// A file in messages: its name, or "standard input".
[[nodiscard]] std::string Shown(const std::string& file);

/// Reads one settings file after the other into the same storage.
class Reader {
 public:
  Reader();
  /// The bytes of a file or of standard input, until the next call. No settings file has
  /// kRestoreLimit bytes: of a longer one so many are read. Throws Trouble.
  [[nodiscard]] std::span<const std::uint8_t> Read(const std::string& file);

 private:
  std::vector<std::uint8_t> bytes_;
};

/// All that a file or standard input holds. Throws Trouble.
[[nodiscard]] std::string ReadText(const std::string& file);

}  // namespace quorvel::tool
