#include "apps/quorvel/many_files.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <system_error>
#include <thread>
#include <utility>

#include "apps/quorvel/reader.h"
#include "apps/quorvel/trouble.h"

namespace quorvel::tool {

namespace {

namespace fs = std::filesystem;

void AddListed(const ManyFiles& files, std::vector<std::string>& names) {
  std::istringstream list(ReadText(files.files_from));
  const char end = files.zero_ended ? '\0' : '\n';
  for (std::string name; std::getline(list, name, end);) {
    if (!name.empty()) names.push_back(name);
  }
}

}  // namespace

void ManyFiles::AddTo(CLI::App& command) {
  command.add_option("--files-from", files_from, "Also the files named in LIST, one a line")
      ->type_name("LIST");
  command.add_flag("-0,--null", zero_ended,
                   "Names in LIST end with a zero byte, as of find -print0");
  command.add_flag("-r,--recursive", recursive, "Of folders, all files *.bin below them");
  command.add_option("-j,--threads", threads, "Look at so many files at once (as many as cores)")
      ->type_name("N")
      ->check(CLI::Range(1, 1024));
  command.add_flag("-l,--list", names_only, "Print the names of such files alone");
}

bool IsFolder(const std::string& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

std::vector<std::string> SettingsFilesBelow(const std::string& folder) {
  std::vector<std::string> paths;
  std::error_code error;
  fs::recursive_directory_iterator entries(folder, error);
  for (; !error && entries != fs::recursive_directory_iterator(); entries.increment(error)) {
    std::string path = entries->path().string();
    std::error_code unknown;
    if (path.ends_with(".bin") && !entries->is_directory(unknown)) paths.push_back(std::move(path));
  }
  if (error) throw Trouble(folder, error.message());
  std::ranges::sort(paths);
  return paths;
}

std::vector<std::string> ManyFiles::All() const {
  std::vector<std::string> names = operands;
  if (!files_from.empty()) AddListed(*this, names);
  if (!recursive) return names;
  std::vector<std::string> all;
  for (const std::string& name : names) {
    if (IsFolder(name)) {
      std::ranges::move(SettingsFilesBelow(name), std::back_inserter(all));
    } else {
      all.push_back(name);
    }
  }
  return all;
}

unsigned ManyFiles::Threads() const {
  return threads != 0 ? threads : std::max(1U, std::thread::hardware_concurrency());
}

}  // namespace quorvel::tool
