#include "platform/common/whole_files.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "quorvel/platform.h"

namespace quorvel {

std::vector<std::uint8_t> ReadWholeFile(const std::string& path) {
  if (std::filesystem::is_directory(path)) throw PlatformError("cannot read a folder: " + path);
  std::ifstream file(path, std::ios::binary);
  std::vector<char> bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  if (!file.is_open() || file.bad()) throw PlatformError("cannot read " + path);
  return {bytes.begin(), bytes.end()};
}

void ReplaceWholeFile(const std::string& path, std::span<const std::uint8_t> bytes) {
  const std::string beside = path + ".new";
  std::error_code error;
  {
    std::ofstream file(beside, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
      std::filesystem::remove(beside, error);
      throw PlatformError("cannot write " + path);
    }
  }
  std::filesystem::rename(beside, path, error);
  if (error) {
    std::error_code ignored;
    std::filesystem::remove(beside, ignored);
    throw PlatformError("cannot replace " + path);
  }
}

}  // namespace quorvel
