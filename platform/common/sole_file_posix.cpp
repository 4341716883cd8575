#ifndef _WIN32

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/common/sole_file.h"

namespace quorvel {

namespace {

namespace fs = std::filesystem;

std::error_code LastError() { return {errno, std::generic_category()}; }

/// A writer holds a lock on its file, which goes with its process. A file system without locks
/// accepts every writer.
bool Lock(int handle) { return ::flock(handle, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK; }

/// True while the name is still that of the open file: another writer may have moved it away.
bool IsAt(int handle, const fs::path& path) {
  struct stat open {};
  struct stat named {};
  return ::fstat(handle, &open) == 0 && ::lstat(path.c_str(), &named) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

/// Removes the file of a writer that is gone; false when there is nothing that may be removed.
bool RemoveLeft(const fs::path& path, std::error_code& error) {
  const int left = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
  if (left < 0) {
    error = LastError();
    return false;
  }
  struct stat status {};
  const bool is_file = ::fstat(left, &status) == 0 && S_ISREG(status.st_mode);
  error = std::make_error_code(std::errc::file_exists);
  bool removed = false;
  if (is_file && Lock(left) && IsAt(left, path)) {
    removed = ::unlink(path.c_str()) == 0;
    if (!removed) error = LastError();
  }
  ::close(left);
  return removed;
}

}  // namespace

std::optional<SoleFile> SoleFile::Create(const fs::path& path, std::error_code& error) {
  constexpr mode_t kUsualRights = 0666;
  constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
  fs::path name = path;
  int handle = ::open(path.c_str(), kFlags, kUsualRights);
  if (handle < 0 && errno == EEXIST) {
    if (!RemoveLeft(path, error)) return std::nullopt;
    handle = ::open(path.c_str(), kFlags, kUsualRights);
  }
  if (handle < 0) {
    error = LastError();
    return std::nullopt;
  }
  SoleFile file(std::move(name), handle);
  // Before it was locked, another writer may have taken it for one that is left.
  if (Lock(handle)) return file;
  error = std::make_error_code(std::errc::file_exists);
  return std::nullopt;
}

std::error_code SoleFile::Write(std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const auto written = ::write(handle_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return LastError();
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return ::fsync(handle_) == 0 ? std::error_code() : LastError();
}

std::error_code SoleFile::MoveTo(const fs::path& target) {
  std::error_code error;
  fs::rename(path_, target, error);
  if (!error) ::close(std::exchange(handle_, kNone));
  return error;
}

SoleFile::~SoleFile() {
  if (handle_ == kNone) return;
  if (IsAt(handle_, path_)) ::unlink(path_.c_str());
  ::close(handle_);
}

}  // namespace quorvel

#endif
