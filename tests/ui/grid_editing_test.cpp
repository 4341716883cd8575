#include "ui/editing/grid_editing.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "muxhost/script/commands.h"
#include "muxhost/script/parser.h"
#include "muxhost/script/report.h"

namespace quorvel {
namespace {

using Reach = ColumnRules::Reach;

/// A grid of four rows beside controls of every kind that can edit it, bound in one of three ways.
class GridDesk : public Dialog {
 public:
  GridDesk(Platform& platform, std::ostream& out, GridEditing::Release release)
      : Dialog(platform, "frm_Desk"), editing(grid, release), out_(out) {
    SetLayout(Row(grid, Column(list, combo, slider, shown, picker, hours)));
    SetEditsCellWords("Edits ");
    grid.SetSize(5, 8);
    for (int column = 0; column < 8; ++column) {
      grid.SetCell(0, column, "Column " + std::to_string(column));
    }
    slider.SetRange(0, 5);
  }
  /// Each kind of control edits a column; the list edits two, and no cell of row 4.
  void BindKinds() {
    ColumnRules no_row_4{.takes = [](int row) { return row != 4; },
                         .written = [this](int row) { out_ << "written " << row << '\n'; },
                         .chosen = [this] { out_ << "chosen\n"; },
                         .empty = 0};
    editing.Bind(1, list, Macros(), no_row_4);
    editing.Bind(2, combo, Rates());
    editing.Bind(3, slider, shown);
    editing.Bind(4, picker, {.empty = Grid::kNone});
    editing.Bind(5, list, Macros());
  }
  /// The slider shows and writes in the whole row, so does the drop-down list but in row 2.
  void BindRows() {
    ColumnRules whole_row{.shows = Reach::kInRow, .writes = Reach::kInRow};
    editing.Bind(1, list, Macros());
    editing.Bind(2, list, Macros());
    editing.Bind(3, slider, shown, whole_row);
    whole_row.takes = [](int row) { return row != 2; };
    whole_row.written = [this](int row) { out_ << "written " << row << '\n'; };
    editing.Bind(4, combo, Rates(), whole_row);
  }
  /// Two lists stand at one value, hours and minutes are one time, and from row 2 on a list offers
  /// other lines.
  void BindPairs() {
    editing.BindPair(1, list, Choices({"001", "009", "017"}), 2, hours,
                     Choices({"003", "024", "048"}));
    editing.BindPair(3, 4, picker);
    const Choices all({"0 pps", "1 pps", "4 pps", "20 pps"});
    editing.Bind(5, combo, all, {.of_row = [all](int row) {
                   return row == 1 ? all : Choices{{0, "0 pps"}, {2, "4 pps"}};
                 }});
  }

  Grid grid{*this, "grid"};
  ListBox list{*this, "list"};
  ComboBox combo{*this, "combo"};
  Slider slider{*this, "slider"};
  Label shown{*this, "shown"};
  TimePicker picker{*this, "picker"};
  ListBox hours{*this, "hours"};
  GridEditing editing;

 private:
  /// Two lines read the same, one of them stands for 99; "NONE" reads as nothing in a cell.
  static Choices Macros() {
    Choices macros{{0, "NONE"}, {1, "Macro 1"}, {99, "Macro 1"}, {3, "Macro 3"}};
    return macros.Reads(0, "").Reads(9, "Macro 9");
  }
  static Choices Rates() { return Choices({"----", "----", "5.0 pps"}); }

  std::ostream& out_;
};

/// Follows grid_editing.transcript: the commands of scripts, and some of its own.
class GridTranscript : public ::testing::Test {
 protected:
  void Do(const std::string& line) {
    const auto words = muxhost::SplitWords(line);
    const auto number = [&words](std::size_t i) { return std::stoi(words.at(i)); };
    const std::string& verb = words.front();
    if (verb == "open") return Open(words.at(1));
    GridDesk& it = *desk_;
    if (verb == "put") return it.editing.SetValue(number(1), number(2), number(3));
    if (verb == "go") return it.editing.GoTo(number(1), number(2));
    if (verb == "paste") return Paste("type" + line.substr(verb.size()));
    if (verb == "empties-rows") return it.editing.SetEmpties(GridEditing::Empties::kRows);
    if (verb == "cells") return PrintColumns(words);
    if (verb == "value") {
      out_ << "value " << it.editing.ValueAt(number(1), number(2)) << '\n';
    } else if (verb == "controls") {
      PrintControls();
    } else {
      muxhost::Execute(scripts_, words);
    }
  }
  void Open(const std::string& binding) {
    const bool writes = binding == "kinds";
    desk_ = std::make_shared<GridDesk>(
        scripts_.platform, out_,
        writes ? GridEditing::Release::kWrites : GridEditing::Release::kSelects);
    writes ? desk_->BindKinds() : binding == "rows" ? desk_->BindRows() : desk_->BindPairs();
    desk_->Show();
  }
  /// The text is told as one that is typed, with line ends and tabs.
  void Paste(const std::string& like_typing) {
    const Answer answer = desk_->grid.Paste(muxhost::SplitWords(like_typing).at(1));
    if (answer == Answer::kNotAChoice) out_ << "no choice\n";
    if (answer == Answer::kNoSuchPlace) out_ << "no such place\n";
  }
  /// The texts of columns below the header.
  void PrintColumns(const std::vector<std::string>& words) {
    for (std::size_t i = 1; i < words.size(); ++i) {
      out_ << words.at(i) << ":";
      for (int row = 1; row < 5; ++row) {
        out_ << " " << muxhost::Quoted(desk_->grid.Cell(row, std::stoi(words.at(i))));
      }
      out_ << '\n';
    }
  }
  /// What the controls show; those that edit the current cell are marked.
  void PrintControls() {
    for (const Widget* const it : desk_->Widgets()) {
      if (it == &desk_->grid) continue;
      out_ << it->Name() << (it->EditsCell() ? "*" : "");
      for (const std::string& text : {it->ValueText(), it->Caption(), it->SpokenNote()}) {
        out_ << (text.empty() ? "" : " ") << text;
      }
      out_ << '\n';
    }
  }

  std::ostringstream out_;
  muxhost::Desk scripts_{out_};
  std::shared_ptr<GridDesk> desk_;
};

TEST_F(GridTranscript, RunsAsWritten) {
  std::ifstream file(QUORVEL_SOURCE_DIR "/tests/ui/grid_editing.transcript");
  std::string expected;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    expected += line + '\n';
    if (line.starts_with("> ") || line.starts_with("=== ")) out_ << line << '\n';
    try {
      if (line.starts_with("> ")) Do(line.substr(2));
    } catch (const std::exception& reason) {
      out_ << reason.what() << '\n';
    }
  }
  EXPECT_FALSE(expected.empty());
  EXPECT_EQ(out_.str(), expected);
}

}  // namespace
}  // namespace quorvel
