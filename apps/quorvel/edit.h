#pragma once

#include <string>
#include <vector>

#include "apps/quorvel/one_file.h"

namespace quorvel::tool {

/// Changes to a settings file: all of them are written, or nothing is.
class Edit {
 public:
  explicit Edit(const std::string& file);

  [[nodiscard]] MainMenuCtrl& Control() { return file_.Control(); }
  /// Sets a setting; `value` is what MainMenuCtrl::SetSetting takes, `shown` what the user gave.
  void Set(const std::string& name, const std::string& value, const std::string& shown);
  /// Tells that a setting stays as it is, as only the device writes it.
  void PassOver(const std::string& name);
  /// A change that cannot be made, and why: nothing will be written.
  void Refuse(const std::string& name, const std::string& why);
  /// Writes the file with its changes to `out`, if nothing was refused; else says what was. A byte
  /// that no change concerns is as it was. The exit status.
  int Store(const std::string& out);

 private:
  OneFile file_;
  std::vector<std::uint8_t> before_;
  std::vector<std::string> refused_;
};

/// The file that a command writes.
inline constexpr const char* kOutOption = "-o,--output";

/// Writes bytes beside a file and moves them into its place, or to standard output. Throws Trouble.
void StoreOutput(const std::string& out, ByteSpan bytes);

}  // namespace quorvel::tool
