#include "ui/editing/grid_editing.h"

#include <algorithm>
#include <utility>

namespace quorvel {

GridEditing::GridEditing(Grid& grid, Release release) : grid_(grid) {
  grid_.on_press = [this] { ShowCell(); };
  if (release == Release::kWrites) {
    grid_.on_release = [this] {
      const Binding* const binding = BindingOf(grid_.Column());
      if (binding != nullptr) WriteSelectedRows(*binding, Alike::kStays);
      ShowSelection();
    };
  } else {
    grid_.on_release = [this] { ShowSelection(); };
  }
  grid_.on_mark = [this] { ShowSelection(); };
  grid_.takes_paste = [this](int row, int column, const std::string& text) {
    return Takes(row, column, text);
  };
  grid_.on_paste = [this](int row, int column, const std::string& text) {
    Paste(row, column, text);
  };
  grid_.can_empty = [this] { return CanEmpty(); };
  grid_.on_empty = [this] { EmptySelectedRows(); };
}

int GridEditing::Binding::PartOf(int column) const {
  const auto found = std::find(columns.begin(), columns.end(), column);
  return found == columns.end() ? kNoPart : static_cast<int>(found - columns.begin());
}

std::function<void(const Widget&)> GridEditing::Add(std::unique_ptr<CellControl> control,
                                                    std::vector<int> columns, ColumnRules rules) {
  bindings_.push_back({std::move(control), std::move(columns), std::move(rules)});
  for (const int column : bindings_.back().columns) {
    const auto place = static_cast<std::size_t>(column);
    if (by_column_.size() <= place) by_column_.resize(place + 1, nullptr);
    if (by_column_[place] == nullptr) by_column_[place] = &bindings_.back();
  }
  return [this](const Widget& widget) { WriteChoice(widget); };
}

void GridEditing::Bind(int column, ChoiceWidget& list, Choices choices, ColumnRules rules) {
  if (list.Count() == 0) list.SetItems(choices.Texts());
  ChoicesOfRow of_row = rules.of_row;
  list.on_click = [&list, write = Add(MakeCellControl(list, std::move(choices), std::move(of_row)),
                                      {column}, std::move(rules))] { write(list); };
}

void GridEditing::Bind(int column, Slider& slider, Label& shown, ColumnRules rules) {
  slider.on_change = [&slider, &shown,
                      write = Add(MakeCellControl(slider, shown), {column}, std::move(rules))] {
    shown.SetCaption(std::to_string(slider.Value()));
    write(slider);
  };
}

void GridEditing::Bind(int column, TimePicker& picker, ColumnRules rules) {
  picker.on_change = [&picker, write = Add(MakeCellControl(picker), {column}, std::move(rules))] {
    write(picker);
  };
}

void GridEditing::BindPair(int hour_column, int minute_column, TimePicker& picker,
                           ColumnRules rules) {
  picker.on_change = [&picker, write = Add(MakeHourAndMinute(picker), {hour_column, minute_column},
                                           std::move(rules))] { write(picker); };
}

void GridEditing::BindPair(int column, ChoiceWidget& list, Choices choices, int other_column,
                           ChoiceWidget& other_list, Choices other_choices, ColumnRules rules) {
  list.SetItems(choices.Texts());
  other_list.SetItems(other_choices.Texts());
  const auto write =
      Add(MakeCellControl(list, std::move(choices), other_list, std::move(other_choices)),
          {column, other_column}, std::move(rules));
  const auto move_together = [write](ChoiceWidget& used, ChoiceWidget& follower) {
    follower.Select(used.Current());
    write(used);
  };
  list.on_click = [=, &list, &other_list] { move_together(list, other_list); };
  other_list.on_click = [=, &list, &other_list] { move_together(other_list, list); };
}

const GridEditing::Binding* GridEditing::BindingOf(int column) const {
  const auto place = static_cast<std::size_t>(column);
  return place < by_column_.size() ? by_column_[place] : nullptr;
}

bool GridEditing::Offers(int column, int value) const {
  const Binding* const binding = BindingOf(column);
  return binding != nullptr && binding->control->Offers(binding->PartOf(column), value);
}

bool GridEditing::MeansEmpty(int column, int value) const {
  const Binding* const binding = BindingOf(column);
  return binding != nullptr && binding->rules.empty == value;
}

bool GridEditing::Has(int row, int column) const {
  const Binding* const binding = BindingOf(column);
  return binding == nullptr || binding->Has(row);
}

bool GridEditing::Waits(int row, int column) const {
  const Binding* const binding = BindingOf(column);
  return binding != nullptr && binding->Has(row) && binding->rules.needs &&
         binding->rules.needs(row) && ValueAt(row, column) == Grid::kNone;
}

const Widget* GridEditing::ControlOf(int column) const {
  const Binding* const binding = BindingOf(column);
  return binding == nullptr ? nullptr : &binding->control->Control();
}

std::string GridEditing::TextOf(int column, int value) const {
  const Binding* const binding = BindingOf(column);
  return binding == nullptr ? "" : binding->control->TextOf(binding->PartOf(column), value);
}

void GridEditing::SetValue(int row, int column, int value) {
  const Binding* const binding = BindingOf(column);
  if (binding == nullptr) return;
  grid_.SetCell(row, column, binding->control->TextOf(binding->PartOf(column), value), value);
}

void GridEditing::GoTo(int row, int column) {
  grid_.SetCurrent(row, column);
  ShowCell();
}

void GridEditing::Show(const Binding& binding, int row, std::vector<int> values) {
  binding.control->Show(row, values);
  PutShown(binding, row, std::move(values));
}

void GridEditing::PutShown(const Binding& binding, int row, std::vector<int> values) {
  grid_.Owner().Remember(shown_);
  shown_[&binding.control->Control()] = {&binding, row, std::move(values)};
}

/// A cell that an editor has made to read otherwise than its value shows none.
std::vector<int> GridEditing::ValuesIn(const Binding& binding, int row) const {
  std::vector<int> values;
  for (const int column : binding.columns) {
    const int value = ValueAt(row, column);
    const bool reads_so =
        grid_.Cell(row, column) == binding.control->TextOf(binding.PartOf(column), value);
    values.push_back(reads_so ? value : Grid::kNone);
  }
  return values;
}

void GridEditing::ShowRow(const Binding& binding) {
  const int row = grid_.Row();
  const bool shows = binding.rules.shows == ColumnRules::Reach::kInRow ||
                     binding.PartOf(grid_.Column()) != kNoPart;
  if (shows && row >= grid_.HeaderRows()) Show(binding, row, ValuesIn(binding, row));
}

void GridEditing::ShowCell() {
  if (before_show) before_show();
  for (const Binding& binding : bindings_) ShowRow(binding);
  MarkControls();
  if (after_show) after_show();
}

void GridEditing::ShowSelection() {
  for (const Binding& binding : bindings_) {
    if (binding.rules.of_row && binding.PartOf(grid_.Column()) != kNoPart) ShowRow(binding);
  }
}

bool GridEditing::WritesNow(const Binding& binding, int column) {
  return binding.rules.writes == ColumnRules::Reach::kInRow || binding.PartOf(column) != kNoPart;
}

/// A control may serve several columns; it is marked while one of them is current.
void GridEditing::MarkControls() {
  for (const Binding& binding : bindings_) {
    Mark(binding.control->Control());
    if (Widget* const other = binding.control->OtherControl()) Mark(*other);
  }
}

void GridEditing::Mark(Widget& control) {
  const int column = grid_.Column();
  const auto edits = std::find_if(bindings_.begin(), bindings_.end(), [&](const Binding& it) {
    return WritesNow(it, column) && it.control->Is(control);
  });
  if (edits == bindings_.end()) return control.SetEditsCell(false, {});
  const bool on_it = edits->PartOf(column) != kNoPart;
  control.SetEditsCell(true, grid_.ColumnName(on_it ? column : edits->columns.front()));
}

void GridEditing::WriteChoice(const Widget& control) {
  const int column = grid_.Column();  // where a rule goes meanwhile does not matter
  bool writes = false;
  for (const Binding& binding : bindings_) {
    if (!binding.control->Is(control) || !WritesNow(binding, column)) continue;
    writes = true;
    WriteSelectedRows(binding, Alike::kIsWritten);
  }
  if (!writes) TakeBack(control);
}

/// Nothing was chosen, so the control shows again what it showed.
void GridEditing::TakeBack(const Widget& control) {
  for (const Binding& binding : bindings_) {
    if (!binding.control->Is(control)) continue;
    const auto shown = shown_.find(&binding.control->Control());
    if (shown != shown_.end()) {
      return shown->second.binding->control->Show(shown->second.row, shown->second.values);
    }
    return binding.control->Show(grid_.Row(),
                                 std::vector<int>(binding.columns.size(), Grid::kNone));
  }
}

void GridEditing::WriteSelectedRows(const Binding& binding, Alike alike) {
  std::vector<int> values;
  for (int part = 0; part < binding.Parts(); ++part) {
    values.push_back(binding.control->Chosen(part));
  }
  if (values.front() == Grid::kNone) return;
  PutShown(binding, grid_.Row(), values);
  PutIntoRows(binding, values, grid_.FirstSelected(), grid_.LastSelected(), alike);
  // Where the current row has not taken it, the control goes on showing what is there.
  if (ValuesIn(binding, grid_.Row()) != values) ShowRow(binding);
}

bool GridEditing::ReadsAlike(int row, int column, int value) const {
  return !Offers(column, ValueAt(row, column)) && grid_.Cell(row, column) == TextOf(column, value);
}

void GridEditing::PutIntoRows(const Binding& binding, const std::vector<int>& values, int first,
                              int last, Alike alike) {
  bool taken = false;
  for (int row = std::max(first, grid_.HeaderRows()); row <= last; ++row) {
    if (!binding.Takes(row)) continue;
    taken = true;
    for (std::size_t part = 0; part < values.size(); ++part) {
      const int column = binding.columns.at(part);
      if (alike == Alike::kStays && ReadsAlike(row, column, values[part])) continue;
      SetValue(row, column, values[part]);
    }
    FollowUp(binding, row);
  }
  if (taken) MoveTo(binding);
  if (binding.rules.chosen) binding.rules.chosen();
}

void GridEditing::FollowUp(const Binding& binding, int row) {
  if (binding.rules.written) binding.rules.written(row);
  EmptyLacking(row);
}

void GridEditing::EmptyLacking(int row) {
  for (const Binding& it : bindings_) {
    if (it.Has(row)) continue;
    for (const int column : it.columns) SetValue(row, column, Grid::kNone);
    if (row == grid_.Row()) ShowRow(it);
  }
}

void GridEditing::MoveTo(const Binding& binding) {
  if (!binding.rules.moves || binding.PartOf(grid_.Column()) != kNoPart) return;
  grid_.SetColumn(binding.columns.front());
  MarkControls();
}

bool GridEditing::IsPutBackBy(const Widget& control, int row, int column) const {
  if (row < grid_.FirstSelected() || row > grid_.LastSelected()) return false;
  const auto edits = [&](const Binding& it) {
    const bool here = whole_rows_ || it.PartOf(column) != kNoPart;
    if (!here || !it.Takes(row)) return false;
    if (&control == &grid_) return whole_rows_ || it.PartOf(grid_.Column()) != kNoPart;
    return it.control->Is(control) && WritesNow(it, grid_.Column());
  };
  return std::any_of(bindings_.begin(), bindings_.end(), edits);
}

void GridEditing::FollowPutBack(const std::set<int>& rows) {
  for (const int row : rows) {
    if (whole_rows_) break;  // nothing is left to follow
    for (const Binding& binding : bindings_) {
      if (binding.rules.written && binding.Has(row)) binding.rules.written(row);
    }
    EmptyLacking(row);
  }
  for (const Binding& binding : bindings_) {
    if (binding.rules.chosen) binding.rules.chosen();
  }
  ShowCell();
}

void GridEditing::ChooseInAllRows(int column, int value) {
  const Binding* const binding = BindingOf(column);
  if (binding == nullptr) return;
  PutIntoRows(*binding, std::vector<int>(binding->columns.size(), value), grid_.HeaderRows(),
              grid_.Rows() - 1, Alike::kIsWritten);
  ShowRow(*binding);
}

std::optional<int> GridEditing::PastedValue(const Binding& binding, int column,
                                            const std::string& text) const {
  const int part = binding.PartOf(column);
  const int value = binding.control->ValueOf(part, text);
  if (value != Grid::kNone) return value;
  const std::optional<int>& empty = binding.rules.empty;
  const bool empties = empties_ == Empties::kCells && empty.has_value();
  return empties && binding.control->TextOf(part, *empty) == text ? empty : std::nullopt;
}

bool GridEditing::Takes(int row, int column, const std::string& text) const {
  const Binding* const binding = BindingOf(column);
  if (binding == nullptr) return false;
  if (!binding->Has(row)) return text.empty();  // as it is: rows can be copied whole
  if (text == grid_.Cell(row, column)) return true;
  if (!binding->Takes(row)) return false;
  const ChoicesOfRow& of_row = binding->rules.of_row;
  if (of_row && of_row(row).ValueOf(text) == Choices::kNone) return false;
  return PastedValue(*binding, column, text).has_value();
}

void GridEditing::Paste(int row, int column, const std::string& text) {
  if (text == grid_.Cell(row, column)) return;  // its value, one of several of that text, stays
  if (!Takes(row, column, text)) return;        // not since a cell at the left was pasted
  const Binding& binding = *BindingOf(column);
  const int value = PastedValue(binding, column, text).value_or(Grid::kNone);
  for (const int part : binding.columns) {
    if (part == column || binding.control->StandsAtOneValue()) SetValue(row, part, value);
  }
  FollowUp(binding, row);
  if (binding.rules.chosen) binding.rules.chosen();
  if (row == grid_.Row()) ShowCell();
}

bool GridEditing::CanEmpty() const {
  const auto can = [](const Binding& it) { return it.rules.empty.has_value(); };
  if (empties_ == Empties::kRows) return std::any_of(bindings_.begin(), bindings_.end(), can);
  const Binding* const binding = BindingOf(grid_.Column());
  return binding != nullptr && can(*binding);
}

void GridEditing::EmptySelectedRows() {
  for (const Binding& binding : bindings_) {
    const bool meant = empties_ == Empties::kRows || binding.PartOf(grid_.Column()) != kNoPart;
    if (!meant || !binding.rules.empty) continue;
    PutIntoRows(binding, std::vector<int>(binding.columns.size(), *binding.rules.empty),
                grid_.FirstSelected(), grid_.LastSelected(), Alike::kIsWritten);
  }
  ShowCell();
}

}  // namespace quorvel
