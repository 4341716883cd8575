#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "quorvel/widgets.h"
#include "ui/editing/cell_control.h"

namespace quorvel {

/// What is special about a column; the plain one needs nothing.
struct ColumnRules {
  enum class Reach { kInColumn, kInRow };
  /// A press makes the control show the cell when it is on the column, or anywhere in the row.
  Reach shows = Reach::kInColumn;
  /// A choice is written while the column is current, or whatever column is.
  Reach writes = Reach::kInColumn;
  /// Lines that the list offers for the cell of a row, and takes from a paste; none: those of the
  /// column. They may depend on what else is selected.
  ChoicesOfRow of_row = {};
  /// False for a row that keeps its cell.
  std::function<bool(int row)> takes = {};
  /// Called after the cell of a row was written.
  std::function<void(int row)> written = {};
  /// Called once after a choice, a paste or Delete has written all rows that take it.
  Handler chosen = {};
  /// The value of a cell that is emptied, by Delete or by pasting a text that reads like it; none:
  /// cells of the column cannot be emptied.
  std::optional<int> empty = {};
  /// A choice makes its column current.
  bool moves = false;
  /// False for a row that lacks the column: its cell is empty, takes nothing and is not written. A
  /// choice that takes the column from a row empties the cell.
  std::function<bool(int row)> has = {};
  /// True for a row whose cell must hold a value. OK is refused while it is empty.
  std::function<bool(int row)> needs = {};
};

/// Edits a grid through controls beside it, one for each editable column. A press on a cell makes
/// its control show the cell; what is chosen in the control is written into the selected rows. In
/// many grids the end of a drag writes, too, what the control shows.
///
/// A cell stands for a value of the device: one of a list's lines, a slider's number, minutes of
/// the day, or hours and minutes in two columns. A value that the control does not offer leaves it
/// blank, and so does a cell that an editor has made to read otherwise; a blank control writes
/// nothing: looking at a value never changes it. Where a value without a line reads as one that has
/// one, the control shows that line; a drag leaves such cells as they are, only a choice changes
/// them.
///
/// A control is marked while its column is current. What is chosen in one of another column is not
/// written, and the control shows again what it showed.
class GridEditing {
 public:
  enum class Release {
    kWrites,   ///< the end of a drag writes what the control of the column shows
    kSelects,  ///< it only selects
  };
  enum class Empties {
    kCells,  ///< Delete empties the cells of the current column
    kRows,   ///< it empties all columns that can be
  };
  explicit GridEditing(Grid& grid, Release release = Release::kWrites);
  GridEditing(const GridEditing&) = delete;
  GridEditing& operator=(const GridEditing&) = delete;
  ~GridEditing() = default;

  /// Binds a column to its control. One control may serve several columns.
  void Bind(int column, ChoiceWidget& list, Choices choices, ColumnRules rules = {});
  /// `shown` repeats the slider's value, and nothing for a cell without one.
  void Bind(int column, Slider& slider, Label& shown, ColumnRules rules = {});
  /// A column of times as "HH:mm".
  void Bind(int column, TimePicker& picker, ColumnRules rules = {});
  /// A column of hours and one of minutes, of two digits each; either is written with the other.
  void BindPair(int hour_column, int minute_column, TimePicker& picker, ColumnRules rules = {});
  /// Two columns of one value, each with a list of its own; the lists always stand at the same one.
  void BindPair(int column, ChoiceWidget& list, Choices choices, int other_column,
                ChoiceWidget& other_list, Choices other_choices, ColumnRules rules = {});
  void SetEmpties(Empties what) { empties_ = what; }
  /// A row is put back whole: what one of its cells can hold depends on the others.
  void SetRowsAreWhole() { whole_rows_ = true; }

  /// Called after a press, before the controls show the cell; may make another cell current.
  Handler before_show;
  Handler after_show;

  /// Makes a cell current, as when its page comes to the front, and shows it.
  void GoTo(int row, int column);
  /// Makes the controls show the current cell again, after the editor has changed cells.
  void ShowCell();
  /// Puts a value into every row that takes it, as one choice of the column's control does into the
  /// selected ones.
  void ChooseInAllRows(int column, int value);
  /// Fills a cell of a bound column with a value of the device; kNone makes it empty.
  void SetValue(int row, int column, int value);
  /// The value that a cell stands for, or Grid::kNone; and whether a column's control offers one.
  [[nodiscard]] int ValueAt(int row, int column) const { return grid_.Value(row, column); }
  [[nodiscard]] bool Offers(int column, int value) const;
  /// True for the value of a cell of the column that was emptied.
  [[nodiscard]] bool MeansEmpty(int column, int value) const;
  /// False where the row lacks the column.
  [[nodiscard]] bool Has(int row, int column) const;
  /// True where OK has to wait for a choice.
  [[nodiscard]] bool Waits(int row, int column) const;
  /// Whether a cell is among those that are put back by `control`: the grid, or one that edits
  /// them.
  [[nodiscard]] bool IsPutBackBy(const Widget& control, int row, int column) const;
  /// After cells of these rows were put back: what follows from a choice follows.
  void FollowPutBack(const std::set<int>& rows);
  /// The control that edits a column, the first of two; none for a column that is not bound.
  [[nodiscard]] const Widget* ControlOf(int column) const;
  /// How a value reads in a cell of a bound column.
  [[nodiscard]] std::string TextOf(int column, int value) const;

 private:
  struct Binding {
    std::unique_ptr<CellControl> control;
    std::vector<int> columns;
    ColumnRules rules;
    /// Which of its columns this is, or kNoPart.
    [[nodiscard]] int PartOf(int column) const;
    [[nodiscard]] int Parts() const { return static_cast<int>(columns.size()); }
    [[nodiscard]] bool Has(int row) const { return !rules.has || rules.has(row); }
    [[nodiscard]] bool Takes(int row) const {
      return Has(row) && (!rules.takes || rules.takes(row));
    }
  };
  static constexpr int kNoPart = -1;
  /// Adds a binding; returns what the handler of a control has to call.
  std::function<void(const Widget&)> Add(std::unique_ptr<CellControl> control,
                                         std::vector<int> columns, ColumnRules rules);
  [[nodiscard]] const Binding* BindingOf(int column) const;
  /// True when a choice is written while this column is current.
  [[nodiscard]] static bool WritesNow(const Binding& binding, int column);
  void Show(const Binding& binding, int row, std::vector<int> values);
  void PutShown(const Binding& binding, int row, std::vector<int> values);
  /// Makes a control that shows the current row show it again.
  void ShowRow(const Binding& binding);
  /// Renews lines that depend on the selection.
  void ShowSelection();
  [[nodiscard]] std::vector<int> ValuesIn(const Binding& binding, int row) const;
  void MarkControls();
  void Mark(Widget& control);
  void WriteChoice(const Widget& control);
  void TakeBack(const Widget& control);
  enum class Alike { kStays, kIsWritten };
  void WriteSelectedRows(const Binding& binding, Alike alike);
  /// Puts a value for each part into the rows that take it.
  void PutIntoRows(const Binding& binding, const std::vector<int>& values, int first, int last,
                   Alike alike);
  /// Whether a cell stands for a value without a line that reads as `value` does.
  [[nodiscard]] bool ReadsAlike(int row, int column, int value) const;
  /// After a cell of the row was written.
  void FollowUp(const Binding& binding, int row);
  /// Empties the cells of columns that a row lacks now.
  void EmptyLacking(int row);
  void MoveTo(const Binding& binding);
  /// The value that a pasted text puts into a column, if it can be put there. Where Delete empties
  /// whole rows, no cell is emptied alone.
  [[nodiscard]] std::optional<int> PastedValue(const Binding& binding, int column,
                                               const std::string& text) const;
  [[nodiscard]] bool Takes(int row, int column, const std::string& text) const;
  void Paste(int row, int column, const std::string& text);
  [[nodiscard]] bool CanEmpty() const;
  void EmptySelectedRows();

  /// What a control showed last, and for which of its columns.
  struct Shown {
    const Binding* binding;
    int row;
    std::vector<int> values;
  };

  Grid& grid_;
  Empties empties_ = Empties::kCells;
  bool whole_rows_ = false;
  std::deque<Binding> bindings_;  // stay where they are
  std::vector<const Binding*> by_column_;
  std::map<const Widget*, Shown> shown_;
};

}  // namespace quorvel
