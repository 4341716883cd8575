#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <system_error>
#include <utility>

namespace quorvel {

/// A new file that this writer alone writes into. Another writer, in this process or another, that
/// wants the same name meanwhile is refused; one that comes after this writer was killed finds the
/// name free. The file goes with its writer unless it is moved.
class SoleFile {
 public:
  /// Makes the file. What a killed writer has left under that name is removed first; nothing, and
  /// an error, when another writer is at it or the name cannot be had.
  [[nodiscard]] static std::optional<SoleFile> Create(const std::filesystem::path& path,
                                                      std::error_code& error);
  SoleFile(SoleFile&& other) noexcept
      : path_(std::move(other.path_)), handle_(std::exchange(other.handle_, kNone)) {}
  SoleFile& operator=(SoleFile&&) = delete;
  ~SoleFile();

  /// Writes all bytes, down to the disk.
  [[nodiscard]] std::error_code Write(std::span<const std::uint8_t> bytes);
  /// Moves the file to `target`, in place of what is there. Ends the writing.
  [[nodiscard]] std::error_code MoveTo(const std::filesystem::path& target);

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
#ifdef _WIN32
  using Handle = void*;
  static constexpr Handle kNone = nullptr;
#else
  using Handle = int;
  static constexpr Handle kNone = -1;
#endif
  SoleFile(std::filesystem::path path, Handle handle) noexcept
      : path_(std::move(path)), handle_(handle) {}

  std::filesystem::path path_;
  Handle handle_;  ///< none once the file has been moved
};

}  // namespace quorvel
