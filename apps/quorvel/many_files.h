#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace quorvel::tool {

/// The operands and options by which a command takes any number of files.
struct ManyFiles {
  std::vector<std::string> operands;
  std::string files_from;
  bool zero_ended = false;
  bool recursive = false;
  unsigned threads = 0;
  bool names_only = false;

  void AddTo(CLI::App& command);
  /// The files in the order of the operands, then those listed in a file; of folders, with
  /// -r, what is below them. Throws Trouble.
  [[nodiscard]] std::vector<std::string> All() const;
  [[nodiscard]] unsigned Threads() const;
};

[[nodiscard]] bool IsFolder(const std::string& path);
/// The paths of files named "*.bin" in a folder and below it, in their order. Throws Trouble.
[[nodiscard]] std::vector<std::string> SettingsFilesBelow(const std::string& folder);

}  // namespace quorvel::tool
