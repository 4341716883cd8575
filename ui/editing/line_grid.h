#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/editing/editor_part.h"

namespace quorvel {

/// A grid of a line for every camera, alarm, timer: numbered from 1, with a column for each
/// setting, which one description heads, fills, edits and writes. No column is narrower than its
/// name.
class LineGrid {
 public:
  enum class Header {
    kOneRow,
    kTwoRows,  ///< equal names, side by side or one below the other, are drawn as one
  };
  /// `name` heads the column of the numbers. The columns are fields of `group`, which has a line
  /// for each of the grid's.
  LineGrid(const EditorPart& part, Grid& grid, FieldGroup& group, const std::string& name,
           GridEditing::Release release = GridEditing::Release::kWrites,
           Header header = Header::kOneRow);
  LineGrid(const LineGrid&) = delete;
  LineGrid& operator=(const LineGrid&) = delete;
  ~LineGrid() = default;

  /// Adds a column at the right; returns its number. In a grid with two header rows, `below` is the
  /// second one's text, or nothing where one name stands for both.
  int AddColumn(const std::string& header, const std::string& below = {});

  /// Binds a column to the control that edits it and to its setting.
  Field& Bind(int column, ChoiceWidget& list, Choices choices, SettingRef setting,
              ColumnRules rules = {});
  Field& Bind(int column, Slider& slider, Label& shown, SettingRef setting, ColumnRules rules = {});
  /// Minutes of the day.
  Field& Bind(int column, TimePicker& picker, SettingRef setting, ColumnRules rules = {});
  /// Two columns: hours and minutes.
  void BindPair(int hour_column, int minute_column, TimePicker& picker, SettingRef hour,
                SettingRef minute, ColumnRules rules = {});
  /// Two columns of one setting, each with a list of its own; the lists always stand at the same
  /// value.
  void BindPair(int column, ChoiceWidget& list, Choices choices, int other_column,
                ChoiceWidget& other_list, Choices other_choices, const SettingRef& setting,
                ColumnRules rules = {});
  /// Adds a column and binds it.
  Field& Column(const std::string& header, ChoiceWidget& list, Choices choices, SettingRef setting,
                ColumnRules rules = {}) {
    return Bind(AddColumn(header), list, std::move(choices), std::move(setting), std::move(rules));
  }

  /// Adds a column whose cells hold cameras, from 0, told by their titles beside the numbers. A
  /// camera that the model lacks keeps its number in sight.
  Field& CameraColumn(const std::string& header, ChoiceWidget& list, Choices cameras,
                      SettingRef setting, ColumnRules rules = {});

  /// Has the lines, which are cameras, told by their titles beside their numbers. `title_of` gives
  /// that of a camera, from 0, in UTF-8; without it, it is the one that the device shows.
  void NameByTitles(std::function<std::string(int camera)> title_of = {});
  /// Makes the first cell current, as when the page comes to the front.
  void GoToStart();
  /// Makes the first cell current that waits for a choice, and tells which: "Camera 3 "Door":
  /// Target Size". Empty when there is none.
  [[nodiscard]] std::string GoToWaitingCell();
  [[nodiscard]] Grid& Cells() { return grid_; }
  [[nodiscard]] bool Showing() const { return grid_.Showing(); }
  [[nodiscard]] GridEditing& Editing() { return editing_; }

 private:
  Field& AddField(int column, SettingRef setting);

  const EditorPart& part_;
  Grid& grid_;
  FieldGroup& group_;
  GridEditing editing_;
  std::function<std::string(int)> title_of_;
  std::vector<int> camera_columns_;
};

}  // namespace quorvel
