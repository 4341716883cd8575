#include "quorvel/whole_files.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/common/sole_file.h"
#include "quorvel/platform.h"

namespace quorvel {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kMostBytes = 64 << 20;

/// Paths are UTF-8, whatever the system's own encoding of file names is.
fs::path PathOf(const std::string& utf8) { return std::u8string(utf8.begin(), utf8.end()); }

[[noreturn]] void Refuse(std::string_view what, const std::string& path,
                         const std::error_code& why) {
  throw PlatformError(std::string(what) + ' ' + path + ": " + why.message());
}

/// A link stays a link, also one to a file that is not there yet.
fs::path BehindLinks(fs::path path) {
  constexpr int kMostLinks = 40;
  std::error_code error;
  for (int n = 0; n < kMostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++n) {
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return path;
}

/// The file that is to take the target's place: "x.bin.new" beside "x.bin". Only where that name
/// cannot be had, because another writer is at it, a number follows.
std::optional<SoleFile> CreateBeside(const fs::path& target, std::error_code& error) {
  constexpr int kMostTries = 9;
  for (int n = 0; n < kMostTries; ++n) {
    fs::path beside = target;
    beside += n == 0 ? ".new" : ".new" + std::to_string(n);
    auto file = SoleFile::Create(beside, error);
    if (file || error == std::errc::no_such_file_or_directory) return file;
  }
  return std::nullopt;
}

std::error_code WriteBeside(const fs::path& target, const fs::file_status& present,
                            std::span<const std::uint8_t> bytes) {
  std::error_code error;
  auto file = CreateBeside(target, error);
  if (!file) return error;
  error = file->Write(bytes);
  if (error) return error;
  if (fs::exists(present)) {
    std::error_code refused;  // another user's file: it is replaced all the same
    fs::permissions(file->Path(), present.permissions(), refused);
  }
  return file->MoveTo(target);
}

}  // namespace

std::vector<std::uint8_t> ReadWholeFile(const std::string& path) {
  const fs::path name = PathOf(path);
  std::error_code error;
  if (fs::exists(name, error) && !fs::is_regular_file(name, error)) {
    throw PlatformError("cannot read " + path + ": it is not a file");
  }
  const auto length = fs::file_size(name, error);
  if (error) Refuse("cannot read", path, error);
  if (length > kMostBytes)
    Refuse("cannot read", path, std::make_error_code(std::errc::file_too_large));
  errno = 0;
  std::ifstream file(name, std::ios::binary);
  std::vector<char> bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  if (!file.is_open() || file.bad()) {
    Refuse("cannot read", path, {errno != 0 ? errno : EIO, std::generic_category()});
  }
  return {bytes.begin(), bytes.end()};
}

void ReplaceWholeFile(const std::string& path, std::span<const std::uint8_t> bytes) {
  std::error_code error;
  const fs::path target = BehindLinks(PathOf(path));
  const auto present = fs::status(target, error);
  if (fs::exists(present) && !fs::is_regular_file(present)) {
    throw PlatformError("cannot write " + path + ": it is not a file");
  }
  error = WriteBeside(target, present, bytes);
  if (error) Refuse("cannot write", path, error);
}

}  // namespace quorvel
