// Settings files without a device: makes the defaults of one, changes settings by name, keeps them
// in a file, and tells how two files differ.
#include <iostream>

#include "quorvel/headless_platform.h"
#include "quorvel/main_menu_ctrl.h"
#include "quorvel/whole_files.h"

namespace {

/// A control that only edits: no device is asked for anything.
struct Editor {
  quorvel::HeadlessPlatform platform;
  quorvel::MainMenuEvents nobody;
  quorvel::MainMenuCtrl control{platform, nobody};

  Editor() { control.InitProperties(); }

  bool Set(std::string_view name, std::string_view value) {
    const quorvel::SetAnswer answer = control.SetSetting(name, value);
    if (answer == quorvel::SetAnswer::kSet || answer == quorvel::SetAnswer::kUnchanged) return true;
    std::cerr << name << " = " << value << ": " << quorvel::Describe(answer);
    if (const auto setting = control.DescribeSetting(name)) {
      std::cerr << ", it can have " << quorvel::AllowedInWords(*setting);
    }
    std::cerr << '\n';
    return false;
  }
  bool Load(const std::string& path) {
    const quorvel::LoadAnswer answer = control.LoadSettings(quorvel::ReadWholeFile(path));
    if (!answer.cause.empty()) std::cerr << path << ": " << answer.cause << '\n';
    return answer.loaded;
  }
};

int Run(const std::string& path) {
  Editor before;
  if (!before.control.LoadDefaults(16, 6, "UNIT", '4')) return 1;
  quorvel::ReplaceWholeFile(path, before.control.SaveSettings());

  Editor after;
  if (!after.Load(path)) return 1;
  after.Set("CamInfo(0).title", "T\xC3\xBCr");  // UTF-8
  after.Set("CamInfo(0).title", "a title of too many letters");
  const auto differences = after.control.DifferencesFrom(before.control.Image());
  for (const quorvel::SettingDifference& it : differences.value()) {
    std::cout << it.name << ": " << it.other << " has become " << it.value << '\n';
  }
  quorvel::ReplaceWholeFile(path, after.control.SaveSettings());
  return after.control.SettingFindings().empty() ? 0 : 1;  // every setting is what it can be
}

}  // namespace

int main(int argc, char** argv) try {
  return Run(argc > 1 ? argv[1] : "example.cfg");
} catch (const quorvel::PlatformError& error) {  // the file cannot be read or written
  std::cerr << error.what() << '\n';
  return 2;
}
