#pragma once

#include <stdexcept>
#include <string>

namespace quorvel::tool {

// Exit statuses of all commands, those of diff(1).
inline constexpr int kDone = 0;
inline constexpr int kFound = 1;  ///< files differ, or there is a finding
inline constexpr int kTrouble = 2;

/// A command cannot do what it was asked to. The text becomes "quorvel: FILE: why".
class Trouble : public std::runtime_error {
 public:
  explicit Trouble(const std::string& why) : std::runtime_error(why) {}
  Trouble(const std::string& file, const std::string& why) : Trouble(file + ": " + why) {}
};

}  // namespace quorvel::tool
