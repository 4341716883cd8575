#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "tests/host/test_host.h"
#include "tests/ui/editor_items.h"
#include "tests/ui/use.h"
#include "ui/editing/editor.h"

namespace quorvel {

/// "CamInfo(3).TextPos" without its index.
inline std::string WithoutIndex(std::string name) {
  for (auto open = name.find('('); open != std::string::npos; open = name.find('(')) {
    name.erase(open, name.find(')') - open + 1);
  }
  return name;
}

/// A device of a model with random settings, on the bench of an installer who tries everything.
class Bench {
 public:
  static constexpr unsigned kFactory = 0xFAC;  ///< instead of a random number: factory settings

  Bench(Byte cameras, Byte code, Byte variant, unsigned seed)
      : random_(seed), cameras_(cameras), code_(code), variant_(variant), seed_(seed) {
    if (seed == kFactory) {
      host_.device = LoadDefaultImage(code < 2 ? 104 : code < 6 ? 301 : 401);
    } else {
      FillWithRandomBytes();
    }
    host_.Identify(cameras, code, variant);
    host_.Download();
    host_.platform.TakeMessages();
    host_.OpenMenu();  // on a duplex model the menu locks the keyboard by itself
    device_ = Values();
  }

  std::vector<std::string> Items() {
    host_.OpenMenu();
    return EditorItems(host_.platform.Menu().Root());
  }
  /// Opens an editor, and leaves it open.
  Editor& Open(const std::string& item) {
    dialog_ = OpenEditor(host_, item);
    if (item == "mnu_Record" && code_ < 2) always_from_ = code_ == 0 && variant_ == 'A' ? 59 : 56;
    line_ = 0;
    return dynamic_cast<Editor&>(*dialog_);
  }
  void Accept() { EXPECT_EQ(dialog_->DefaultButton()->Click(), Answer::kDone); }
  void Cancel() { EXPECT_EQ(dialog_->CancelButton()->Click(), Answer::kDone); }
  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
  /// Which of so many lines to choose next: any, or each in its turn from `round` on.
  int Place(int count) {
    if (count == 0) return 0;
    return round < 0 ? Below(count) : (round + line_++) % count;
  }
  int Year() { return 2000 + Below(60); }
  std::string Text(const Widget& control) {
    const auto* const box = dynamic_cast<const TextBox*>(&control);
    if (box == nullptr || box->ShownLength() <= 10) return std::to_string(Below(70000));
    return "u" + std::to_string(Below(1000)) + "@site.example";
  }
  int round = -1;

  /// What the record holds, by name.
  std::map<std::string, std::string> Values() {
    std::map<std::string, std::string> values;
    for (const SettingLine& line : host_.control->Settings("")) values[line.name] = line.value;
    return values;
  }
  /// The settings that are not as in the device, by name without index.
  std::set<std::string> Changed() {
    std::set<std::string> names;
    for (const auto& [name, value] : Values()) {
      if (device_.at(name) != value) names.insert(WithoutIndex(name));
    }
    return names;
  }
  /// Of multiplexers and DVRs the record editor always lists the last blocks up to 60.
  [[nodiscard]] bool IsAlwaysListed(int block) const {
    return block >= always_from_ && block <= 60;
  }
  /// Every block in which something differs from the device is listed, and no other: but of an
  /// e-mail address the three blocks of a half together, those that are always listed, and, when
  /// something was changed before, blocks that have been changed back.
  void ExpectListedWhatChanged(bool changed_before = false) {
    std::set<int> changed;
    const auto differences = host_.control->DifferencesFrom(host_.device.Bytes());
    ASSERT_TRUE(differences);
    for (const SettingDifference& it : *differences) {
      if (it.name == "LockKeyBoard") continue;
      for (const int block : it.blocks) {
        const bool mark = block == 219 && it.name != "Rec120sp";  // of turbo rates: never written
        if (!IsDeviceBlock(block) && !mark) changed.insert(block);
      }
    }
    const auto listed = host_.Modified();
    for (const int block : changed) {
      EXPECT_TRUE(std::ranges::count(listed, block) == 1) << "not listed: " << block;
    }
    for (const int block : listed) {
      const bool of_address = clsEmailNotify::TextIndex(block).has_value();
      if (changed_before || of_address || IsAlwaysListed(block)) continue;
      EXPECT_TRUE(changed.contains(block)) << "listed for nothing: " << block;
    }
  }
  [[nodiscard]] TestHost& Host() { return host_; }
  /// The same device on another bench.
  [[nodiscard]] Bench Untouched() const { return {cameras_, code_, variant_, seed_}; }

 private:
  void FillWithRandomBytes() {
    constexpr Byte kBlocks = 225;
    host_.device = BlockImage(std::vector<Byte>(kBlocks * std::size_t{kBlockSize}));
    for (int number = 1; number <= kBlocks; ++number) {
      // Small values are often choices, others never.
      const int limit = Below(3) == 0 ? 256 : 4;
      for (Byte& byte : host_.device.Block(number)) byte = static_cast<Byte>(Below(limit));
    }
    host_.device.Block(1)[kBlockCountByte] = kBlocks;
  }

  TestHost host_;
  std::mt19937 random_;
  int line_ = 0;
  const Byte cameras_, code_, variant_;
  const unsigned seed_;
  int always_from_ = 61;  ///< the first block of those up to 60, if any
  std::shared_ptr<Dialog> dialog_;
  std::map<std::string, std::string> device_;
};

/// Chooses something in the control of a setting; false when it is refused.
inline bool Choose(Bench& bench, Widget& control) {
  if (auto* const option = dynamic_cast<OptionButton*>(&control)) {
    auto& group = *option->GetGroup();
    return group.at(bench.Place(static_cast<int>(group.size()))).Click() == Answer::kDone;
  }
  const bool twice = control.Kind() == WidgetKind::kCheckBox && bench.Below(2) == 0;
  if (twice) Use(control, bench);
  return Use(control, bench) == Answer::kDone;
}

inline Widget& Mutable(const Dialog& dialog, const Widget& widget) {
  return *dialog.FindWidget(widget.Name());
}

/// The settings behind one control, by name.
inline std::string Names(const ShownSetting& shown) {
  std::string names;
  for (const std::string& name : shown.settings) names += (names.empty() ? "" : ", ") + name;
  return names;
}

/// Chooses in the control of every setting that is in sight; returns the values that were chosen.
inline std::map<std::string, int> ChooseEverywhere(Bench& bench, Editor& editor) {
  std::vector<std::size_t> used;
  const auto choose_in_sight = [&] {
    const auto settings = editor.ShownSettings();
    for (std::size_t i = 0; i < settings.size(); ++i) {
      const ShownSetting& shown = settings[i];
      if (!shown.control->Showing()) continue;
      if (shown.edited_by != nullptr) {
        auto& grid = dynamic_cast<Grid&>(Mutable(editor, *shown.control));
        const std::string was = grid.Cell(shown.row, shown.column);
        EXPECT_EQ(grid.Press(shown.row, shown.column), Answer::kDone);
        EXPECT_EQ(grid.Cell(shown.row, shown.column), was) << "looking changes nothing";
      }
      const Widget& control = shown.edited_by == nullptr ? *shown.control : *shown.edited_by;
      if (Choose(bench, Mutable(editor, control))) used.push_back(i);
    }
  };
  auto* const tabs = TabsOf(editor);
  if (tabs == nullptr) choose_in_sight();
  for (int page = 0; tabs != nullptr && page < tabs->Count(); ++page) {
    if (tabs->Choose(page) == Answer::kDone) choose_in_sight();
  }
  std::map<std::string, int> chosen;
  const auto settings = editor.ShownSettings();
  for (const std::size_t i : used) {
    const ShownSetting& now = settings.at(i);
    if (now.value) chosen[Names(now)] = *now.value;
  }
  return chosen;
}

/// Whether a setting that reads so holds the value; of a mask, the bit that its name ends with.
inline bool Holds(const std::map<std::string, std::string>& values, const std::string& name,
                  int value) {
  const auto bit = name.find(" bit ");
  const std::string text = values.at(name.substr(0, bit));
  if (text == "yes" || text == "no") return (text == "yes") == (value == 1);
  const int number = std::stoi(text);
  if (name == "Rec120sp") return (number != 0) == (value != 0);
  if (bit != std::string::npos) return (number >> std::stoi(name.substr(bit + 5)) & 1) == value;
  return number == value + (name == "AlarmTimeOut" ? 1 : 0);  // counts from 1 in words
}

/// Runs `trial` for devices of every model, all with other cameras, variants and settings.
/// QUORVEL_SUITE_ROUNDS says how often.
template <class Trial>
void ForEveryModel(const Trial& trial) {
  const char* const rounds = std::getenv("QUORVEL_SUITE_ROUNDS");
  constexpr Byte kCameras[] = {4, 9, 10, 16};
  constexpr char kVariants[] = {'4', '0', '1', '2', 'A', 'C'};
  for (unsigned round = 0; round < (rounds == nullptr ? 1U : std::stoul(rounds)); ++round) {
    for (unsigned code = 0; code <= 20; ++code) {
      const unsigned seed = round * 21 + code;
      const Byte cameras = kCameras[(code + round) % 4];
      const char variant = kVariants[(code + round * 5) % 6];
      SCOPED_TRACE("model " + std::to_string(code) + " variant " + variant + " cameras " +
                   std::to_string(cameras) + " seed " + std::to_string(seed));
      Bench first(cameras, static_cast<Byte>(code), static_cast<Byte>(variant), seed);
      for (const std::string& item : first.Items()) {
        SCOPED_TRACE(item);
        Bench bench(cameras, static_cast<Byte>(code), static_cast<Byte>(variant), seed);
        trial(bench, item);
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

}  // namespace quorvel
