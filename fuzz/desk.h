#pragma once

#include <map>
#include <string>
#include <vector>

#include "quorvel/byte.h"
#include "quorvel/headless_platform.h"

namespace quorvel::fuzz {

/// What a host throws from inside an event, to see that the control bears it.
struct HostFault {};

/// A headless platform that touches no disk, and looks at every message box: the component tells
/// its own failures there, so a failure that nothing from outside explains ends the run.
class Desk : public HeadlessPlatform {
 public:
  /// Files by path.
  std::map<std::string, std::vector<Byte>> files;
  /// True: files can neither be read nor written.
  bool disk_fails = false;
  /// Answers message boxes and file dialogs; without them: the OK button, and Cancel.
  std::function<bool(const Message&)> answer;
  std::function<std::optional<std::string>(const FileRequest&)> answer_file;
  /// Failures told so far: the input was refused.
  int failures_told = 0;

  bool Ask(const Message& message) override;
  std::optional<std::string> AskFile(const FileRequest& request) override;
  std::vector<std::uint8_t> ReadFile(const std::string& path) override;
  void StoreFile(const std::string& path, std::span<const std::uint8_t> bytes) override;
};

/// Clicks a button; true when it took the click.
bool PressButton(Dialog& dialog, const char* button);

}  // namespace quorvel::fuzz
