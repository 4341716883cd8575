#pragma once

#include <functional>
#include <memory>
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
  /// Items that the list gets before it shows a cell of the column; none: it keeps its own.
  std::vector<std::string> items = {};
  /// Cell text of an item; by default the item's own text.
  std::function<std::string(int item)> text = {};
  /// False for a row that keeps its cell.
  std::function<bool(int row)> takes = {};
  /// Called after the cell of a row was written.
  std::function<void(int row)> written = {};
};

/// Rules of a column that shows one item as nothing: "NONE" as the list says it.
[[nodiscard]] ColumnRules EmptyFor(const ChoiceWidget& list, int item);

/// Edits a grid through controls beside it, one for each editable column. A press on a cell makes
/// its control show the cell; what is chosen in the control is written into the selected rows. In
/// many grids the end of a selection writes, too, what the control shows.
///
/// Cells are items of the control: of a list, places in it; of a slider, values from 0 on; of a
/// time picker, minutes of the day, or hours and minutes in two columns. A cell remembers its item.
/// One that was filled with a text only stands for the first item of that text.
///
/// A cell that no item stands for leaves the control blank, and a blank control writes nothing:
/// looking at a value never changes it.
class GridEditing {
 public:
  enum class Release {
    kWrites,   ///< the end of a selection writes what the control of the column shows
    kSelects,  ///< it only selects
  };
  explicit GridEditing(Grid& grid, Release release = Release::kWrites);
  GridEditing(const GridEditing&) = delete;
  GridEditing& operator=(const GridEditing&) = delete;
  ~GridEditing() = default;

  /// Binds a column to its control. One control may serve several columns.
  void Bind(int column, ChoiceWidget& list, ColumnRules rules = {});
  /// `shown` repeats the slider's value, and nothing for a cell without one.
  void Bind(int column, Slider& slider, Label& shown, ColumnRules rules = {});
  /// A column of times as "HH:mm".
  void Bind(int column, TimePicker& picker, ColumnRules rules = {});
  /// A column of hours and one of minutes, of two digits each; either is written with the other.
  void BindPair(int hour_column, int minute_column, TimePicker& picker, ColumnRules rules = {});

  /// Called after a press, before the controls show the cell; may make another cell current.
  Handler before_show;
  Handler after_show;

  /// Makes a cell current, as when its page comes to the front, and shows it.
  void GoTo(int row, int column);
  /// Makes the controls show the current cell again, after the editor has changed cells.
  void ShowCell();
  /// Fills a cell of a bound column. One without an item, or with one that the list does not have,
  /// is empty.
  void SetItem(int row, int column, int item);
  /// The item that a cell of a bound column stands for, or ChoiceWidget::kNone.
  [[nodiscard]] int ItemAt(int row, int column) const;

 private:
  struct Binding {
    std::unique_ptr<CellControl> control;
    std::vector<int> columns;
    ColumnRules rules;
    /// Which of its columns this is, or kNoPart.
    [[nodiscard]] int PartOf(int column) const;
    [[nodiscard]] int Parts() const { return static_cast<int>(columns.size()); }
  };
  static constexpr int kNoPart = -1;
  /// Adds a binding; returns what the control's handler has to call.
  Handler Add(std::unique_ptr<CellControl> control, std::vector<int> columns, ColumnRules rules);
  [[nodiscard]] const Binding* BindingOf(int column) const;
  [[nodiscard]] int ItemIn(const Binding& binding, int part, int row) const;
  void WriteChoice(const Widget& control);
  void WriteSelectedRows(const Binding& binding);
  [[nodiscard]] bool Takes(int row, int column, const std::string& text) const;
  void Paste(int row, int column, const std::string& text);

  Grid& grid_;
  std::vector<Binding> bindings_;
};

}  // namespace quorvel
