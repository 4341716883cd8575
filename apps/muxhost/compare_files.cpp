#include "muxhost/compare_files.h"

#include "quorvel/headless_platform.h"
#include "settings_files/comparison.h"

namespace quorvel::muxhost {

namespace {

/// A control without a screen, a device or a host, for one file.
class Scratch {
 public:
  /// Why the file cannot be loaded; empty when it was.
  [[nodiscard]] std::string Load(std::span<const Byte> file, const files::FileParts& parts) {
    const LoadAnswer answer = files::LoadAsItIs(control_, file, parts);
    return answer ? std::string() : answer.cause;
  }
  [[nodiscard]] const MainMenuCtrl& Control() const { return control_; }

 private:
  HeadlessPlatform platform_;
  MainMenuEvents no_host_;
  MainMenuCtrl control_{platform_, no_host_};
};

Comparison Compare(const files::FileParts& before, const MainMenuCtrl& control,
                   const files::FileParts& after) {
  const auto differences = files::DifferencesFrom(before, control, after);
  if (!differences) return {"There is nothing to compare.", {}};
  Comparison comparison;
  for (const auto& it : *differences) comparison.lines.push_back(files::InWords(it));
  return comparison;
}

}  // namespace

Comparison CompareFiles(std::span<const Byte> before, std::span<const Byte> after) {
  const files::FileParts first = files::PartsOf(before);
  const files::FileParts second = files::PartsOf(after);
  if (std::string why = Scratch().Load(before, first); !why.empty()) {
    return {"The first file: " + why, {}};
  }
  Scratch scratch;
  if (std::string why = scratch.Load(after, second); !why.empty()) {
    return {"The second file: " + why, {}};
  }
  return Compare(first, scratch.Control(), second);
}

Comparison CompareWithFile(std::span<const Byte> before, const MainMenuCtrl& control) {
  const files::FileParts file = files::PartsOf(before);
  if (std::string why = Scratch().Load(before, file); !why.empty()) return {std::move(why), {}};
  const auto image = control.EditedImage();
  return Compare(file, control, {false, {}, image});
}

}  // namespace quorvel::muxhost
