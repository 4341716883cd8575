#include "platform/common/whole_files.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

#include "quorvel/platform.h"

namespace quorvel {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kMostBytes = 64 << 20;

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

void WriteNew(const fs::path& path, std::span<const std::uint8_t> bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw PlatformError("cannot write " + path.string());
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
  // A link stays a link, to the file that is replaced.
  fs::path target = path;
  if (fs::is_symlink(fs::symlink_status(path, error))) target = fs::weakly_canonical(path, error);
  const fs::path beside = FreeNameBeside(target);
  try {
    WriteNew(beside, bytes);
    const auto present = fs::status(target, error);
    if (fs::exists(present)) fs::permissions(beside, present.permissions());
    fs::rename(beside, target);
  } catch (const std::exception&) {
    fs::remove(beside, error);
    throw PlatformError("cannot write " + path);
  }
}

}  // namespace quorvel
