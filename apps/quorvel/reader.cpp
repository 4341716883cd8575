#include "apps/quorvel/reader.h"

#include <fcntl.h>
#include <unistd.h>

#ifdef _WIN32
#include <io.h>
#endif

#include <cerrno>
#include <system_error>

#include "apps/quorvel/trouble.h"
#include "quorvel/settings_file.h"

namespace quorvel::tool {

namespace {

#ifdef _WIN32
constexpr int kHow = O_RDONLY | O_BINARY;
void ReadStandardAsBytes() { ::_setmode(STDIN_FILENO, O_BINARY); }
#else
constexpr int kHow = O_RDONLY | O_CLOEXEC;
void ReadStandardAsBytes() {}
#endif

/// A file that is open, by the plain calls: of thousands of small files, a stream's own storage and
/// its questions about the file would be half the cost.
class OpenFile {
 public:
  explicit OpenFile(const std::string& name) : name_(name) {
    if (name == kStandard) {
      ReadStandardAsBytes();
      handle_ = STDIN_FILENO;
      return;
    }
    handle_ = ::open(name.c_str(), kHow);
    if (handle_ < 0) Fail();
  }
  ~OpenFile() {
    if (handle_ != STDIN_FILENO) ::close(handle_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  /// Reads on into `room`; how many bytes, 0 at the end. A pipe may give few at a time.
  [[nodiscard]] std::size_t ReadInto(std::span<std::uint8_t> room) const {
    for (;;) {
      const auto count = ::read(handle_, room.data(), static_cast<unsigned>(room.size()));
      if (count >= 0) return static_cast<std::size_t>(count);
      if (errno != EINTR) Fail();
    }
  }

 private:
  [[noreturn]] void Fail() const {
    throw Trouble(Shown(name_), std::generic_category().message(errno));
  }

  const std::string& name_;
  int handle_ = -1;
};

}  // namespace

std::string Shown(const std::string& file) { return file == kStandard ? "standard input" : file; }

Reader::Reader() : bytes_(kRestoreLimit) {}

std::span<const std::uint8_t> Reader::Read(const std::string& file) {
  const OpenFile open(file);
  const std::span room(bytes_);
  std::size_t length = 0;
  while (length < room.size()) {
    const std::size_t count = open.ReadInto(room.subspan(length));
    if (count == 0) break;
    length += count;
  }
  return room.first(length);
}

std::string ReadText(const std::string& file) {
  const OpenFile open(file);
  std::vector<std::uint8_t> room(kRestoreLimit);
  std::string text;
  while (const std::size_t count = open.ReadInto(room)) {
    text.append(room.begin(), room.begin() + static_cast<std::ptrdiff_t>(count));
  }
  return text;
}

}  // namespace quorvel::tool
