#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include "tests/host/test_host.h"
#include "tests/ui/editor_items.h"
#include "tests/ui/use.h"
#include "ui/editing/editor.h"
#include "ui/widgets/gestures.h"

namespace quorvel {
namespace {

/// Settings that OK writes anew where the device holds what no control offers: what the device's
/// own rules of writing say.
const std::string kPutRight = R"(
ActIndicate ActivityType AlarmInfo.Enable AlarmInfo.ExtAlmAction AlarmInfo.InputConf AlarmMode
AlmActionInfo.Freeze AlmActionInfo.GateIntrus AlmActionInfo.Relay ArchPortSelect AutoDisable
BaudRate BaudRatePPC Buzzer CamInfo.Reject CamInfo.TextPos DvrArchAlm DvrRecMode ExtCam_SwAct
FullScrResolution MRecTimer.RTdate MRecTimer.RTmacrolnk MRecTimer.RTstart_hh
MRecTimer.RTstart_mm MRecTimer.RTstatus MRecTimer.RTstop_hh MRecTimer.RTstop_mm
MRecTimer.RTvalid MatrixInfo.GroupSetup MatrixInfo.GroupSwEnable PlaybackFormat PlaybackOld
PreAlDuration PresetMode PresetPGM RecLock SVHS_MonB SwitchEdge TelAC_DC TelEnable Tel_options
TransmitSpiTime VCRType VCR_Signal_Level
)";

bool IsPutRight(const std::string& name) {
  std::istringstream names(kPutRight);
  return std::count(std::istream_iterator<std::string>(names), {}, name) != 0;
}

/// "CamInfo(3).TextPos" without its index.
std::string WithoutIndex(std::string name) {
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
bool Choose(Bench& bench, Widget& control) {
  if (auto* const option = dynamic_cast<OptionButton*>(&control)) {
    auto& group = *option->GetGroup();
    return group.at(bench.Place(static_cast<int>(group.size()))).Click() == Answer::kDone;
  }
  const bool twice = control.Kind() == WidgetKind::kCheckBox && bench.Below(2) == 0;
  if (twice) Use(control, bench);
  return Use(control, bench) == Answer::kDone;
}

Widget& Mutable(const Dialog& dialog, const Widget& widget) {
  return *dialog.FindWidget(widget.Name());
}

/// The settings behind one control, by name.
std::string Names(const ShownSetting& shown) {
  std::string names;
  for (const std::string& name : shown.settings) names += (names.empty() ? "" : ", ") + name;
  return names;
}

/// Chooses in the control of every setting that is in sight; returns the values that were chosen.
std::map<std::string, int> ChooseEverywhere(Bench& bench, Editor& editor) {
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
bool Holds(const std::map<std::string, std::string>& values, const std::string& name, int value) {
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

TEST(EditorSuite, AnUntouchedOkPutsRightWhatTheRulesSayAndNothingElse) {
  ForEveryModel([](Bench& bench, const std::string& item) {
    bench.Open(item);
    bench.Accept();
    for (const std::string& name : bench.Changed()) EXPECT_TRUE(IsPutRight(name)) << name;
    bench.ExpectListedWhatChanged();
  });
}

/// They hold what every editor can show.
TEST(EditorSuite, AnUntouchedOkLeavesFactorySettingsAsTheyAre) {
  constexpr Byte kCameras[] = {16, 9, 4};
  for (Byte code = 0; code <= 20; ++code) {
    for (const char variant : {'4', '0', '1', '2', 'A', 'C'}) {
      Bench bench(kCameras[code % 3], code, static_cast<Byte>(variant), Bench::kFactory);
      for (const std::string& item : bench.Items()) {
        SCOPED_TRACE(item + " " + std::to_string(code) + " " + variant);
        Editor& editor = bench.Open(item);
        bench.Accept();
        EXPECT_FALSE(editor.Shown());
        auto listed = bench.Host().Modified();
        std::erase_if(listed, [&](int block) { return bench.IsAlwaysListed(block); });
        EXPECT_EQ(listed, std::vector<int>{});
      }
    }
  }
}

/// Whether OK takes a record timer out, so that those behind it move.
bool TimersMove(const std::map<std::string, std::string>& values,
                const std::map<std::string, int>& chosen) {
  const auto is_status = [](const auto& it) { return it.first.find("RTstatus") != it.first.npos; };
  return std::ranges::any_of(chosen,
                             [&](const auto& it) { return is_status(it) && it.second == 2; }) ||
         std::ranges::any_of(values,
                             [&](const auto& it) { return is_status(it) && it.second == "2"; });
}

/// Chooses in every control, accepts, and looks into the record and the editor anew.
void ExpectChoicesArrive(Bench& bench, const std::string& item) {
  auto chosen = ChooseEverywhere(bench, bench.Open(item));
  EXPECT_FALSE(chosen.empty());
  const bool turbo = bench.Values().at("Rec120sp") != "0";
  if (const auto now = chosen.find("Rec120sp");
      now != chosen.end() && turbo != (now->second != 0)) {
    std::erase_if(chosen, [](const auto& it) { return it.second == 99; });  // gone with the switch
  }
  if (TimersMove(bench.Values(), chosen)) {
    std::erase_if(chosen, [](const auto& it) { return it.first.starts_with("MRecTimer"); });
  }
  bench.Accept();
  const auto values = bench.Values();
  for (const auto& [name, value] : chosen) {
    if (name.find(", ") != std::string::npos) continue;  // the editor tells below
    EXPECT_TRUE(Holds(values, name, value))
        << name << " = " << value << ", not " << values.at(name.substr(0, name.find(" bit ")));
  }
  for (const ShownSetting& shown : bench.Open(item).ShownSettings()) {
    EXPECT_FALSE(shown.differs) << shown.settings.front();
    const auto found = chosen.find(Names(shown));
    if (found == chosen.end()) continue;
    EXPECT_EQ(shown.value, found->second) << found->first;
  }
}

/// Sets by name, on another bench, what an editor has changed. Only timers may hold what a set
/// refuses: where one is deleted, those behind it move with whatever they hold. False for such.
bool SetByName(Bench& by_name, const std::map<std::string, std::string>& wanted) {
  bool all = true;
  const auto before = by_name.Values();
  for (const auto& [name, value] : wanted) {
    if (before.at(name) == value) continue;
    const SetAnswer answer = by_name.Host().control->SetSetting(name, value);
    const bool moved = std::ranges::any_of(before, [&held = value, &of = name](const auto& it) {
      return WithoutIndex(it.first) == WithoutIndex(of) && it.second == held;
    });
    if (answer != SetAnswer::kSet && moved && name.starts_with("MRecTimer")) {
      all = false;
    } else {
      EXPECT_EQ(answer, SetAnswer::kSet) << name << " = " << value;
    }
  }
  return all;
}

/// Where editors do more, or less, than what becomes of settings tells.
struct Explained {
  int first, last;       ///< blocks
  bool editor, by_name;  ///< who lists them
};
constexpr Explained kExplained[] = {
    {61, 61, true, false},  // a date and time that were picked again
    {60, 60, false, true},  // FullscrAlm, which some models set as the editor opens
};

/// The same is to come of an editor and of sets by name.
void ExpectTheSameByName(Bench& bench) {
  Bench by_name = bench.Untouched();
  const bool all = SetByName(by_name, bench.Values());
  const BlockImage image(by_name.Host().control->EditedImage());
  const BlockImage edited(bench.Host().control->EditedImage());
  const auto is_listed = [](Bench& it, int block) {
    return std::ranges::count(it.Host().Modified(), block) != 0;
  };
  for (int block = 1; block <= image.BlkCount(); ++block) {
    const bool one = is_listed(bench, block), other = is_listed(by_name, block);
    const auto explains = [=](const Explained& it) {
      return it.first <= block && block <= it.last && it.editor == one && it.by_name == other;
    };
    const bool timers = !all && block >= 195 && block <= 199;
    if (timers || bench.IsAlwaysListed(block) || std::ranges::any_of(kExplained, explains))
      continue;
    EXPECT_EQ(one, other) << "listed: block " << block;
    EXPECT_TRUE(std::ranges::equal(image.Block(block), edited.Block(block))) << "block " << block;
  }
}

TEST(EditorSuite, EveryChoiceReachesItsSettingAndIsShownAgain) {
  ForEveryModel([](Bench& bench, const std::string& item) {
    ExpectChoicesArrive(bench, item);
    bench.ExpectListedWhatChanged();
    ExpectTheSameByName(bench);
  });
}

TEST(EditorSuite, EveryLineOfEveryListIsAValueOfItsOwn) {
  for (const int code : {0, 14}) {
    Bench bench(4, static_cast<Byte>(code), '4', 1);
    for (const std::string& item : bench.Items()) {
      int lines = 2;
      const Editor& editor = bench.Open(item);
      for (const Widget* const widget : editor.Widgets()) {
        const auto* const list = dynamic_cast<const ChoiceWidget*>(widget);
        if (list != nullptr) lines = std::max(lines, list->Count());
      }
      bench.Cancel();
      if (code == 0 && lines > 100) continue;  // long lists are the same on every model
      for (bench.round = 0; bench.round < lines; ++bench.round) {
        SCOPED_TRACE(item + " " + std::to_string(code) + " from line " +
                     std::to_string(bench.round));
        ExpectChoicesArrive(bench, item);
        bench.Cancel();
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

TEST(EditorSuite, CancelAndTheCloseButtonWriteNothing) {
  ForEveryModel([](Bench& bench, const std::string& item) {
    for (const bool cancel : {true, false}) {
      Editor& editor = bench.Open(item);
      ChooseEverywhere(bench, editor);
      EXPECT_EQ(cancel ? editor.CancelButton()->Click() : editor.CloseWindow(), Answer::kDone);
      EXPECT_EQ(bench.Changed(), std::set<std::string>{});
      EXPECT_EQ(bench.Host().Modified(), std::vector<int>{});
    }
  });
}

/// A user who presses, drags, chooses, types and turns pages as he likes.
void Wander(Bench& bench, Editor& editor, int steps) {
  const auto& widgets = editor.Widgets();
  while (steps-- > 0) {
    Widget& widget = *widgets.at(static_cast<std::size_t>(bench.Below(std::ssize(widgets))));
    if (widget.Kind() != WidgetKind::kButton) Use(widget, bench);
  }
}

TEST(EditorSuite, ARandomUserChangesWhatIsListed) {
  ForEveryModel([](Bench& bench, const std::string& item) {
    for (int turn = 0; turn < 3; ++turn) {
      Wander(bench, bench.Open(item), 60);
      bench.Accept();
      bench.ExpectListedWhatChanged(turn > 0);
      if (turn == 0) ExpectTheSameByName(bench);
    }
  });
}

/// All that an editor shows, and what has been edited of it.
std::string Told(const Editor& editor) {
  std::string told;
  for (const Widget* const it : editor.Widgets()) {
    told += it->Name() + " " + it->Caption() + " " + it->SpokenName() + " [" + it->SpokenNote() +
            "] " + it->ValueText() + (it->Enabled() ? "" : " off") +
            (it->Showing() ? "\n" : " -\n");
    if (const auto* box = dynamic_cast<const TextBox*>(it)) told += box->Note() + "\n";
    if (const auto* grid = dynamic_cast<const Grid*>(it)) told += std::to_string(grid->RowSel());
  }
  for (const EditedValue& value : editor.GetGestures()->What().Values()) {
    told += " " + std::to_string(value.number) + value.text;
  }
  return told;
}

/// Does something of the user's to any control.
void DoSomething(Bench& bench, Editor& editor) {
  const auto& widgets = editor.Widgets();
  Widget& widget = *widgets.at(static_cast<std::size_t>(bench.Below(std::ssize(widgets))));
  if (bench.Below(5) == 0) {
    editor.PutBack(widget, bench.Below(2) == 0 ? PutBackTo::kOpened : PutBackTo::kDevice);
  } else if (&widget != editor.DefaultButton() && &widget != editor.CancelButton() &&
             widget.Name() != "cmdActGrid") {
    Use(widget, bench);
  }
}

TEST(EditorSuite, WhatTheUserDoesIsTakenBackStepByStep) {
  ForEveryModel([](Bench& bench, const std::string& item) {
    Editor& editor = bench.Open(item);
    std::vector<std::string> before, after;  // of each step
    const Gestures& steps = *editor.GetGestures();
    const auto go = [&](bool back, std::size_t done) {
      const bool can = back ? done > 0 : done < after.size();
      EXPECT_EQ(back ? editor.Undo() : editor.Redo(), can ? Answer::kDone : Answer::kNoSuchPlace);
      if (!can) return;
      EXPECT_EQ(Told(editor), back ? before.at(done - 1) : after.at(done));
    };
    for (int turn = 0; turn < 60 && !testing::Test::HasFailure(); ++turn) {
      const std::size_t done = steps.Done();
      if (const int way = bench.Below(6); way < 2) {
        go(way == 0, done);
        continue;
      }
      const std::string was = Told(editor);
      DoSomething(bench, editor);
      if (steps.Done() == done) {
        if (steps.GoesOn()) after.back() = Told(editor);
        continue;
      }
      before.resize(done);
      after.resize(done);
      before.push_back(was);
      after.push_back(Told(editor));
    }
    while (editor.CanUndo() && !testing::Test::HasFailure()) go(true, steps.Done());
    EXPECT_FALSE(editor.IsChanged() || editor.Differs());
    while (editor.CanRedo() && !testing::Test::HasFailure()) go(false, steps.Done());
    bench.Accept();
    bench.ExpectListedWhatChanged();
  });
}

/// The settings that differ from the device, but for what the menu locks and what only marks.
std::set<std::string> DifferingNames(Bench& bench) {
  std::set<std::string> names;
  const auto differences = bench.Host().control->DifferencesFrom(bench.Host().device.Bytes());
  for (const SettingDifference& it : *differences) {
    if (it.name != "LockKeyBoard") names.insert(it.name);
  }
  return names;
}

/// Every setting of the editor has a place, which opens it; what was changed in it reads in the
/// review as in the editor.
void ExpectReviewed(Bench& bench, const std::vector<ShownSetting>& shown) {
  std::map<std::string, ReviewLine> lines;
  auto missing = DifferingNames(bench);
  for (const ReviewLine& line : bench.Host().control->Review()) {
    for (const std::string& name : line.settings) {
      lines[name] = line;
      missing.erase(name.substr(0, name.find(" bit ")));
    }
  }
  for (const std::string& name : missing) ADD_FAILURE() << "not in the review: " << name;
  for (const ShownSetting& it : shown) {
    // Where a timer was deleted others move; a time reads in the format that was chosen.
    const std::string& name = it.settings.front();
    if (name.starts_with("MRecTimer") || name.starts_with("TDInfo.CurrentHour")) continue;
    if (!it.differs || it.was == it.is || it.was.empty() || it.is.empty()) continue;
    const auto line = lines.find(it.settings.front());
    if (line == lines.end() || line->second.settings != it.settings) continue;
    if (line->second.at.column != it.column) continue;  // of one setting in two columns
    // Control characters of a title are shown by their codes.
    const auto is_control = [](char byte) { return static_cast<unsigned char>(byte) < ' '; };
    if (std::ranges::any_of(it.was, is_control)) continue;
    EXPECT_TRUE(line->second.old_value.starts_with(it.was)) << Names(it) << " was " << it.was;
  }
}

TEST(EditorSuite, WhatIsReviewedIsTakenBackLineByLine) {
  ForEveryModel([](Bench& bench, const std::string& item) {
    MainMenuCtrl& control = *bench.Host().control;
    Editor& editor = bench.Open(item);
    ChooseEverywhere(bench, editor);
    auto shown = editor.ShownSettings();
    std::erase_if(shown,
                  [](const auto& it) { return it.control->Kind() == WidgetKind::kCheckBox; });
    bench.Accept();
    ExpectReviewed(bench, shown);
    const auto accepted = DifferingNames(bench);
    const auto listed = bench.Host().Modified();
    const auto expect_nothing = [&] {
      EXPECT_EQ(DifferingNames(bench), std::set<std::string>{});
      EXPECT_EQ(bench.Host().Modified(), std::vector<int>{});
    };
    while (control.Undo()) {
    }
    expect_nothing();
    while (control.Redo()) {
    }
    EXPECT_EQ(DifferingNames(bench), accepted);
    EXPECT_EQ(bench.Host().Modified(), listed);
    for (const ReviewLine& line : control.Review()) {
      EXPECT_TRUE(control.TakeBack(line)) << line.settings.front();
    }
    expect_nothing();
    for (const SettingRow& row : control.AllSettings()) {
      if (row.at.item != item || testing::Test::HasFailure()) continue;
      EXPECT_TRUE(control.OpenAt(row.at) || !row.at.control.empty()) << row.at.control;
      break;
    }
  });
}

}  // namespace
}  // namespace quorvel
