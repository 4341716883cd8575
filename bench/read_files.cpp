// Reads the files that it is given and does nothing else: the program with which a check of
// settings files is compared. As many threads as there are cores take some files at a time.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <thread>
#include <vector>

namespace {

constexpr int kPortion = 32;

/// How many bytes a file has; they are in `room` then. Negative when it cannot be read.
long ReadFile(const char* name, std::vector<char>& room) {
  const int handle = ::open(name, O_RDONLY | O_CLOEXEC);
  if (handle < 0) return -1;
  struct stat status {};
  long length = -1;
  if (::fstat(handle, &status) == 0) {
    room.resize(std::max(room.size(), static_cast<std::size_t>(status.st_size)));
    length = ::read(handle, room.data(), static_cast<std::size_t>(status.st_size));
  }
  ::close(handle);
  return length;
}

}  // namespace

int main(int argc, char** argv) {
  std::atomic<int> next = 1;
  std::atomic<long> bytes = 0;
  std::atomic<bool> failed = false;
  {
    std::vector<std::jthread> threads;
    for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i) {
      threads.emplace_back([&] {
        std::vector<char> room;
        for (int first = next.fetch_add(kPortion); first < argc; first = next.fetch_add(kPortion)) {
          for (int file = first; file < std::min(argc, first + kPortion); ++file) {
            const long length = ReadFile(argv[file], room);
            if (length < 0) failed = true;
            bytes += length;
          }
        }
      });
    }
  }
  std::printf("%ld bytes\n", bytes.load());
  return failed ? 1 : 0;
}
