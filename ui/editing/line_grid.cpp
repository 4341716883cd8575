#include "ui/editing/line_grid.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "ui/editing/editor.h"
#include "ui/widgets/utf8.h"

namespace quorvel {

LineGrid::LineGrid(const EditorPart& part, Grid& grid, FieldGroup& group, const std::string& name,
                   GridEditing::Release release, Header header)
    : part_(part), grid_(grid), group_(group), editing_(grid, release) {
  part.editor_.grids_.push_back(this);
  if (header == Header::kTwoRows) {
    grid_.SetHeaderRows(2);
    grid_.SetMergedHeader(true);
  }
  const int header_rows = grid_.HeaderRows();
  grid_.SetSize(header_rows + group.Lines(), 1);
  for (int row = 0; row < header_rows; ++row) grid_.SetCell(row, 0, name);
  grid_.SetLeastWidth(0, CountCharacters(name));
  for (int row = header_rows; row < grid_.Rows(); ++row) {
    grid_.SetCell(row, 0, std::to_string(row - header_rows + 1));
  }
}

int LineGrid::AddColumn(const std::string& header, const std::string& below) {
  const int column = grid_.AddColumns(1);
  grid_.SetCell(0, column, header);
  if (grid_.HeaderRows() > 1) grid_.SetCell(1, column, below.empty() ? header : below);
  // One name of several columns shares their width.
  grid_.SetLeastWidth(column, CountCharacters(below.empty() ? header : below));
  return column;
}

Field& LineGrid::CameraColumn(const std::string& header, ChoiceWidget& list, Choices cameras,
                              SettingRef setting, ColumnRules rules) {
  cameras.OthersRead([](int value) { return std::to_string(value + 1); });
  camera_columns_.push_back(AddColumn(header));
  return Bind(camera_columns_.back(), list, std::move(cameras), std::move(setting),
              std::move(rules));
}

void LineGrid::NameByTitles(std::function<std::string(int)> title_of) {
  title_of_ = title_of ? std::move(title_of) : [this](int camera) { return part_.TitleOf(camera); };
}

void LineGrid::GoToStart() {
  if (title_of_) {
    for (int row = grid_.HeaderRows(); row < grid_.Rows(); ++row) {
      grid_.SetRowNote(row, title_of_(row - grid_.HeaderRows()));
    }
  }
  if (!camera_columns_.empty()) {
    const auto titles = std::make_shared<Grid::ValueNotes>();
    titles->reserve(kMostCameras);
    for (int camera = 0; camera < part_.Id().MaxCam; ++camera) {
      titles->push_back(part_.TitleOf(camera));
    }
    for (const int column : camera_columns_) grid_.SetValueNotes(column, titles);
  }
  editing_.GoTo(grid_.HeaderRows(), 1);
}

std::string LineGrid::GoToWaitingCell() {
  for (int row = grid_.HeaderRows(); row < grid_.Rows(); ++row) {
    for (int column = 1; column < grid_.Columns(); ++column) {
      if (!editing_.Waits(row, column)) continue;
      editing_.GoTo(row, column);
      const std::string& title = grid_.RowNote(row);
      return grid_.Cell(0, 0) + " " + grid_.Cell(row, 0) +
             (title.empty() ? "" : " \"" + title + '"') + ": " + grid_.ColumnName(column);
    }
  }
  return {};
}

Field& LineGrid::AddField(int column, SettingRef setting) {
  return group_.Column(editing_, grid_, column, std::move(setting));
}

Field& LineGrid::Bind(int column, ChoiceWidget& list, Choices choices, SettingRef setting,
                      ColumnRules rules) {
  editing_.Bind(column, list, std::move(choices), std::move(rules));
  return AddField(column, std::move(setting));
}

Field& LineGrid::Bind(int column, Slider& slider, Label& shown, SettingRef setting,
                      ColumnRules rules) {
  editing_.Bind(column, slider, shown, std::move(rules));
  return AddField(column, std::move(setting));
}

Field& LineGrid::Bind(int column, TimePicker& picker, SettingRef setting, ColumnRules rules) {
  editing_.Bind(column, picker, std::move(rules));
  return AddField(column, std::move(setting));
}

void LineGrid::BindPair(int hour_column, int minute_column, TimePicker& picker, SettingRef hour,
                        SettingRef minute, ColumnRules rules) {
  editing_.BindPair(hour_column, minute_column, picker, std::move(rules));
  AddField(hour_column, std::move(hour));
  AddField(minute_column, std::move(minute));
}

void LineGrid::BindPair(int column, ChoiceWidget& list, Choices choices, int other_column,
                        ChoiceWidget& other_list, Choices other_choices, const SettingRef& setting,
                        ColumnRules rules) {
  editing_.BindPair(column, list, std::move(choices), other_column, other_list,
                    std::move(other_choices), std::move(rules));
  AddField(column, setting);
  AddField(other_column, setting);
}

}  // namespace quorvel
