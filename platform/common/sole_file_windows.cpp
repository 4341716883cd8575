#ifdef _WIN32

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <algorithm>

#include "platform/common/sole_file.h"

namespace quorvel {

namespace {

namespace fs = std::filesystem;

std::error_code LastError() { return {static_cast<int>(::GetLastError()), std::system_category()}; }

/// An open file that is not shared can be neither opened nor removed by another writer.
HANDLE CreateNew(const fs::path& path) {
  return ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
}

}  // namespace

std::optional<SoleFile> SoleFile::Create(const fs::path& path, std::error_code& error) {
  fs::path name = path;
  HANDLE handle = CreateNew(path);
  if (handle == INVALID_HANDLE_VALUE && ::GetLastError() == ERROR_FILE_EXISTS) {
    if (::DeleteFileW(path.c_str()) == 0) {
      error = std::make_error_code(std::errc::file_exists);
      return std::nullopt;
    }
    handle = CreateNew(path);
  }
  if (handle == INVALID_HANDLE_VALUE) {
    error = LastError();
    return std::nullopt;
  }
  return SoleFile(std::move(name), handle);
}

std::error_code SoleFile::Write(std::span<const std::uint8_t> bytes) {
  constexpr std::size_t kMostAtOnce = 1 << 20;
  while (!bytes.empty()) {
    const auto part = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
    DWORD written = 0;
    if (::WriteFile(handle_, bytes.data(), part, &written, nullptr) == 0) return LastError();
    bytes = bytes.subspan(written);
  }
  return ::FlushFileBuffers(handle_) != 0 ? std::error_code() : LastError();
}

std::error_code SoleFile::MoveTo(const fs::path& target) {
  constexpr DWORD kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  ::CloseHandle(std::exchange(handle_, kNone));  // an open file cannot be moved
  if (::MoveFileExW(path_.c_str(), target.c_str(), kHow) != 0) return {};
  const std::error_code error = LastError();
  ::DeleteFileW(path_.c_str());
  return error;
}

SoleFile::~SoleFile() {
  if (handle_ == kNone) return;
  ::CloseHandle(handle_);
  ::DeleteFileW(path_.c_str());
}

}  // namespace quorvel

#endif
