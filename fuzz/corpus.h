#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/byte.h"

namespace quorvel::fuzz {

/// The folder of a target's seeds, emptied.
class Corpus {
 public:
  Corpus(const std::filesystem::path& folder, const std::string& target)
      : folder_(folder / target) {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  void Add(const std::string& name, const std::vector<Byte>& bytes) const {
    std::ofstream file(folder_ / name, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    if (!file) throw std::runtime_error("cannot write " + (folder_ / name).string());
  }

 private:
  std::filesystem::path folder_;
};

inline std::vector<Byte> Joined(std::vector<Byte> head, const std::vector<Byte>& tail) {
  head.insert(head.end(), tail.begin(), tail.end());
  return head;
}

}  // namespace quorvel::fuzz
