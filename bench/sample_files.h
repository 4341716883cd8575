#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace quorvel::bench {

/// A folder of settings files that goes with it: factory defaults of several models, each with
/// edits of its own; plain images and combined arrays. One in twenty holds a value that it cannot
/// have.
class SampleFiles {
 public:
  /// Throws std::exception when they cannot be written.
  explicit SampleFiles(std::size_t count);
  ~SampleFiles();
  SampleFiles(const SampleFiles&) = delete;
  SampleFiles& operator=(const SampleFiles&) = delete;

  [[nodiscard]] const std::vector<std::string>& All() const { return all_; }
  /// Those of the first model.
  [[nodiscard]] const std::vector<std::string>& Alike() const { return alike_; }

 private:
  std::filesystem::path folder_;
  std::vector<std::string> all_;
  std::vector<std::string> alike_;
};

}  // namespace quorvel::bench
