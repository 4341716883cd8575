#include <gtest/gtest.h>

#include "core/codec.h"
#include "core/factory_defaults.h"
#include "tests/host/test_host.h"

namespace quorvel {
namespace {

/// Factory settings of a model, with all blocks that there are, as the encoder writes them.
std::unique_ptr<TestHost> HostOf(Byte code, Byte cameras, Byte variant) {
  BlockImage image = LoadDefaultImage(FactoryImageOf(code));
  AdaptToDevice(image, DefaultsDevice{variant, cameras, code, {'U', 'N', 'I', 'T'}}, 0);
  image.ResizeBlocks(225);
  image.Block(1)[kBlockCountByte] = 225;
  // Those of alarms fit larger devices only.
  for (const int displays : {38, 40, 42}) std::ranges::fill(image.Block(displays), Byte{0});
  RecordEnvironment env;
  const auto record = std::make_unique<MuxData>(env);
  DecodeImage(image, env, *record);
  EncodeImage(image, env, *record);
  auto host = std::make_unique<TestHost>();
  host->device = std::move(image);
  host->control->HostCommId(1);
  host->GiveWholeImage();
  return host;
}

/// The bytes that differ, but for those that tell a device what is new.
std::string ChangedBytes(const std::vector<Byte>& before, const std::vector<Byte>& after) {
  std::string changed;
  for (std::size_t i = 0; i < before.size(); ++i) {
    const std::string byte = std::to_string(i / 16 + 1) + "." + std::to_string(i % 16) + " ";
    const bool mark = byte == "61.15 " || byte == "213.0 " || byte == "217.0 ";
    if (before[i] != after.at(i) && !mark) changed += byte;
  }
  return changed;
}

/// What to set a setting to, and what it then reads.
struct Value {
  std::string written, reads;
};

/// Of a number the words of its codes, and the ends of its range.
std::vector<Value> AllowedValues(const SettingDescription& it) {
  if (it.type == SettingType::kFlag) return {{"no", "no"}, {"yes", "yes"}};
  if (it.type == SettingType::kText) {
    const std::string full(static_cast<std::size_t>(it.most), 'x');
    return {{full, '"' + full + '"'}, {"", "\"\""}};
  }
  std::vector<Value> values;
  const std::string unit = it.unit.empty() ? "" : " " + it.unit;
  const auto number = [&unit](int value) { return std::to_string(value) + unit; };
  for (const SettingCode& code : it.codes) values.push_back({code.text, number(code.value)});
  if (it.codes_only) return values;
  for (const int end : {it.least, it.most}) values.push_back({number(end), number(end)});
  return values;
}

std::vector<std::string> RefusedValues(const SettingDescription& it) {
  if (it.type == SettingType::kFlag) return {"2"};
  if (it.type == SettingType::kText) {
    return {std::string(static_cast<std::size_t>(it.most) + 1, 'x')};
  }
  std::vector<std::string> values;
  for (const int number : {it.least - 1, it.most + 1}) {
    const bool is_code = std::ranges::count(it.codes, number, &SettingCode::value) != 0;
    if (!is_code) values.push_back(std::to_string(number));
  }
  return values;
}

struct Setting {
  std::string name, before;
  std::vector<Value> values;
};

/// The settings that can be set. What each refuses is tried.
std::vector<Setting> SettingsOf(MainMenuCtrl& control) {
  std::vector<Setting> settings;
  for (const SettingDescription& it : control.DescribeSettings()) {
    EXPECT_FALSE(it.blocks.empty()) << it.name;
    const auto refusal = it.writable ? SetAnswer::kNotAValue : SetAnswer::kReadOnly;
    for (const std::string& value : RefusedValues(it)) {
      EXPECT_EQ(control.SetSetting(it.name, value), refusal) << it.name << " " << value;
    }
    if (!it.writable) continue;
    const auto before = control.GetSetting(it.name);
    settings.push_back({it.name, before.value_or("none"), AllowedValues(it)});
  }
  return settings;
}

/// What all settings read, by name.
using Readings = std::map<std::string, std::string>;
Readings Read(const MainMenuCtrl& control) {
  Readings values;
  for (const SettingLine& line : control.Settings()) values.insert({line.name, line.value});
  return values;
}

std::string Unlike(const Readings& expected, const Readings& values) {
  std::string names;
  for (const auto& [name, value] : expected) {
    if (values.at(name) != value) names += name + " ";
  }
  return names;
}

/// What they read in a control that gets the settings, but for bytes behind the end of a macro,
/// which stay behind.
Readings ReadElsewhere(const MainMenuCtrl& control, const Readings& expected) {
  TestHost other;
  other.device = BlockImage(control.EditedImage());
  other.control->HostCommId(1);
  other.GiveWholeImage();
  Readings values = Read(*other.control);
  for (auto& [name, value] : values) {
    if (name.find("SMacroByte") != std::string::npos) value = expected.at(name);
  }
  return values;
}

/// All settings take their first values, then their second, ..., and in the end are what they were.
void TryAll(MainMenuCtrl& control) {
  constexpr int kUsualValues = 3;
  const auto settings = SettingsOf(control);
  const auto image = control.EditedImage();
  EXPECT_TRUE(control.ModifiedBlocks().empty());
  Readings expected = Read(control);
  const auto set = [&](const std::string& name, const Value& value) {
    std::string& reads = expected.at(name);
    const auto answer = reads == value.reads ? SetAnswer::kUnchanged : SetAnswer::kSet;
    EXPECT_EQ(control.SetSetting(name, value.written), answer) << name << " " << value.written;
    reads = value.reads;
  };
  const auto arrives = [&] {
    EXPECT_EQ(Unlike(expected, Read(control)), "");
    EXPECT_EQ(Unlike(expected, ReadElsewhere(control, expected)), "");
    EXPECT_TRUE(control.SettingFindings().empty());
  };
  for (std::size_t round = 0; round < kUsualValues; ++round) {
    for (const Setting& it : settings) {
      if (round < it.values.size()) set(it.name, it.values[round]);
    }
    arrives();
  }
  for (const Setting& it : settings) {
    for (std::size_t i = kUsualValues; i < it.values.size(); ++i) {
      set(it.name, it.values[i]);
      EXPECT_EQ(control.GetSetting(it.name), it.values[i].reads);
    }
  }
  arrives();
  for (const Setting& it : settings) set(it.name, {it.before, it.before});
  EXPECT_EQ(ChangedBytes(image, control.EditedImage()), "");
}

TEST(SettingsByName, EverySettingTakesWhatItCanHaveAndNothingElse) {
  constexpr Byte kVariants[] = {'0', '4', '1', '2'};
  for (Byte code = 0; !ModelText(code).empty(); ++code) {
    SCOPED_TRACE(testing::Message() << "code " << int{code});
    const Byte cameras = code == 6 ? 4 : code == 14 ? 2 : 1;
    TryAll(*HostOf(code, cameras, kVariants[code % std::size(kVariants)])->control);
    if (HasFailure()) return;
  }
}

/// Behind the end of a script a device may hold anything. It reads as 0 and stays, but for what is
/// set, which may be 0 again.
TEST(SettingsByName, AByteBehindTheEndOfAMacroCanBeSetToZero) {
  constexpr std::size_t kByte = 70 * kBlockSize + 1 + 5;  // of the third camera, byte 5
  const auto host = HostOf(6, 16, '2');
  host->device.Block(71)[6] = 7;
  host->GiveWholeImage();
  MainMenuCtrl& control = *host->control;
  const std::string name = "SubMacroInfo(2).SMacroByte(5)";
  EXPECT_EQ(control.GetSetting(name), "0");
  EXPECT_EQ(control.EditedImage().at(kByte), 7);
  EXPECT_EQ(control.SetSetting(name, "5"), SetAnswer::kSet);
  EXPECT_EQ(control.EditedImage().at(kByte), 5);
  EXPECT_EQ(control.SetSetting(name, "0"), SetAnswer::kSet);
  EXPECT_EQ(control.EditedImage().at(kByte), 0);
}

}  // namespace
}  // namespace quorvel
