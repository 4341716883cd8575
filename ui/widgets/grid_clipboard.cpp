#include <algorithm>

#include "quorvel/widgets/grid.h"
#include "ui/widgets/gestures.h"
#include "ui/widgets/pasted.h"

namespace quorvel {

std::string Grid::Copied(int first_column, int last_column) const {
  std::string text;
  for (int row = FirstSelected(); row <= LastSelected(); ++row) {
    if (row > FirstSelected()) text += '\n';
    for (int column = first_column; column <= last_column; ++column) {
      if (column > first_column) text += '\t';
      text += Cell(row, column);
    }
  }
  return text;
}

std::vector<Grid::Pasted> Grid::Placed(std::string_view text) const {
  const auto lines = Lines(text);
  const bool single = lines.size() == 1 && lines.front().find('\t') == std::string_view::npos;
  std::vector<Pasted> cells;
  int row = FirstSelected();
  do {
    for (const std::string_view line : lines) {
      int column = column_;
      for (const std::string_view cell : Split(line, '\t')) {
        cells.push_back({row, column++, std::string(cell)});
      }
      ++row;
    }
  } while (single && row <= LastSelected());
  return cells;
}

Answer Grid::Paste(std::string_view lines) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  const auto cells = Placed(lines);
  const bool fits = std::all_of(cells.begin(), cells.end(), [this](const Pasted& cell) {
    return IsCell(cell.row, cell.column) && (range_ == Range::kRows || cell.row == row_);
  });
  if (!fits) return Answer::kNoSuchPlace;
  const Gesture gesture(*this);
  Answer answer = Answer::kNotAChoice;
  Raise([&] {
    const auto taken = [this](const Pasted& cell) {
      return takes_paste && takes_paste(cell.row, cell.column, cell.text);
    };
    if (!on_paste || !std::all_of(cells.begin(), cells.end(), taken)) return;
    answer = Answer::kDone;
    for (const Pasted& cell : cells) on_paste(cell.row, cell.column, cell.text);
  });
  return answer;
}

}  // namespace quorvel
