#include "bench/sample_files.h"

#include <unistd.h>

#include <array>
#include <fstream>
#include <random>
#include <stdexcept>

#include "quorvel/block_image.h"
#include "quorvel/default_images.h"
#include "quorvel/headless_platform.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::bench {

namespace {

namespace fs = std::filesystem;
using Random = std::mt19937;

int OneOf(Random& random, int count) {
  return std::uniform_int_distribution<int>(0, count - 1)(random);
}

std::string RandomText(Random& random, int most) {
  std::string text;
  for (int length = OneOf(random, most + 1); length > 0; --length) {
    text += static_cast<char>('A' + OneOf(random, 26));
  }
  return text;
}

std::string RandomValue(Random& random, const SettingDescription& setting) {
  const auto codes = static_cast<int>(setting.codes.size());
  switch (setting.type) {
    case SettingType::kFlag: return OneOf(random, 2) == 0 ? "no" : "yes";
    case SettingType::kText: return RandomText(random, setting.most);
    case SettingType::kNumber: break;
  }
  if (setting.codes_only)
    return setting.codes.at(static_cast<std::size_t>(OneOf(random, codes))).text;
  return std::to_string(setting.least + OneOf(random, setting.most - setting.least + 1));
}

/// Devices of one model, as a control has them.
class Model {
 public:
  Model(std::uint8_t code, bool combined) : code_(code), combined_(combined) {
    Factory();
    settings_ = control_.DescribeSettings();
  }
  std::vector<std::uint8_t> NewFile(Random& random) {
    constexpr int kEdits = 40;
    Factory();
    for (int i = 0; i < kEdits; ++i) {
      const auto at = static_cast<std::size_t>(OneOf(random, static_cast<int>(settings_.size())));
      control_.SetSetting(settings_[at].name, RandomValue(random, settings_[at]));
    }
    return control_.SaveSettings();
  }

 private:
  void Factory() {
    constexpr std::uint8_t kCameras = 16;
    constexpr std::array<std::uint8_t, 7> kSizes{0, 64, 0, 0, 225, 5, 6};
    if (combined_) control_.FillComboInfo(kSizes);
    if (!control_.LoadDefaults(kCameras, code_, UsualModelName(code_, kCameras), '4')) {
      throw std::logic_error("no factory defaults");
    }
  }

  std::uint8_t code_;
  bool combined_;
  HeadlessPlatform platform_;
  MainMenuEvents host_;
  MainMenuCtrl control_{platform_, host_};
  std::vector<SettingDescription> settings_;
};

void Damage(std::vector<std::uint8_t>& file, bool combined) {
  constexpr std::size_t kFullDwell = 58 * kBlockSize + 5;
  constexpr std::size_t kHeader = 13;
  file.at(kFullDwell + (combined ? kHeader : 0)) = 0;
}

}  // namespace

SampleFiles::SampleFiles(std::size_t count)
    : folder_(fs::temp_directory_path() / ("quorvel_files_" + std::to_string(::getpid()))) {
  constexpr std::array<std::uint8_t, 4> kCodes{6, 2, 10, 18};
  constexpr std::size_t kDamaged = 20;
  fs::create_directory(folder_);
  Random random(1);
  std::vector<std::unique_ptr<Model>> models;
  for (std::size_t i = 0; i < kCodes.size(); ++i) {
    models.push_back(std::make_unique<Model>(kCodes.at(i), i == kCodes.size() - 1));
  }
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t model = i % models.size();
    auto bytes = models[model]->NewFile(random);
    if (i % kDamaged == 0) Damage(bytes, model == models.size() - 1);
    const std::string name = (folder_ / (std::to_string(i) + ".bin")).string();
    std::ofstream file(name, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) throw std::runtime_error("cannot write " + name);
    all_.push_back(name);
    if (model == 0) alike_.push_back(name);
  }
}

SampleFiles::~SampleFiles() {
  std::error_code left;
  fs::remove_all(folder_, left);
}

}  // namespace quorvel::bench
