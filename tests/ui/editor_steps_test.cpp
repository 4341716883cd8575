// What the user does in editors is taken back: gesture by gesture, an OK as a whole, line by line.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <set>

#include "tests/ui/editor_bench.h"
#include "ui/widgets/gestures.h"

namespace quorvel {
namespace {

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
    const auto is_control = [](char byte) {
      return std::iscntrl(static_cast<unsigned char>(byte)) != 0;
    };
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
