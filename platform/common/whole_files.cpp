#include "platform/common/whole_files.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <system_error>

#include "quorvel/platform.h"

#if __has_include(<unistd.h>)
#include <unistd.h>
#endif

namespace quorvel {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kMostBytes = 64 << 20;

/// A link stays a link, also one to a file that is not there yet.
fs::path BehindLinks(fs::path path) {
  constexpr int kMostLinks = 40;
  std::error_code error;
  for (int n = 0; n < kMostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++n) {
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return path;
}

/// A name in the same folder that no file has.
fs::path FreeNameBeside(const fs::path& target) {
  std::error_code error;
  fs::path beside = target;
  beside += ".new";
  for (int n = 1; fs::exists(fs::symlink_status(beside, error)); ++n) {
    beside = target;
    beside += ".new" + std::to_string(n);
  }
  return beside;
}

/// Not before the bytes are on the disk may they take the place of the old ones.
bool WriteThrough(const fs::path& path, std::span<const std::uint8_t> bytes) {
  struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  const std::unique_ptr<std::FILE, Close> file(std::fopen(path.c_str(), "wb"));
  if (file == nullptr) return false;
  bool good = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  good = std::fflush(file.get()) == 0 && good;
#if __has_include(<unistd.h>)
  good = fsync(fileno(file.get())) == 0 && good;
#endif
  return good;
}

}  // namespace

std::vector<std::uint8_t> ReadWholeFile(const std::string& path) {
  std::error_code error;
  if (!fs::is_regular_file(path, error)) throw PlatformError("cannot read " + path);
  if (fs::file_size(path, error) > kMostBytes) throw PlatformError("too long to read: " + path);
  std::ifstream file(path, std::ios::binary);
  std::vector<char> bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  if (!file.is_open() || file.bad()) throw PlatformError("cannot read " + path);
  return {bytes.begin(), bytes.end()};
}

void ReplaceWholeFile(const std::string& path, std::span<const std::uint8_t> bytes) {
  std::error_code error;
  const fs::path target = BehindLinks(path);
  const auto present = fs::status(target, error);
  if (fs::exists(present) && !fs::is_regular_file(present)) {
    throw PlatformError("not a file: " + path);
  }
  const fs::path beside = FreeNameBeside(target);
  bool good = WriteThrough(beside, bytes);
  if (good && fs::exists(present)) {
    std::error_code refused;  // somebody else's file: it is replaced all the same
    fs::permissions(beside, present.permissions(), refused);
  }
  if (good) fs::rename(beside, target, error);
  if (good && !error) return;
  fs::remove(beside, error);
  throw PlatformError("cannot write " + path);
}

}  // namespace quorvel
