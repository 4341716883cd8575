#include "ui/editing/grid_editing.h"

#include <algorithm>
#include <utility>

namespace quorvel {

ColumnRules EmptyFor(const ChoiceWidget& list, int item) {
  ColumnRules rules;
  rules.text = [&list, item](int it) {
    return it == item ? std::string() : list.Items().at(static_cast<std::size_t>(it));
  };
  return rules;
}

GridEditing::GridEditing(Grid& grid, Release release) : grid_(grid) {
  grid_.on_press = [this] { ShowCell(); };
  if (release == Release::kWrites) {
    grid_.on_release = [this] {
      if (const Binding* binding = BindingOf(grid_.Column())) WriteSelectedRows(*binding);
    };
  }
  grid_.takes_paste = [this](int row, int column, const std::string& text) {
    return Takes(row, column, text);
  };
  grid_.on_paste = [this](int row, int column, const std::string& text) {
    Paste(row, column, text);
  };
}

int GridEditing::Binding::PartOf(int column) const {
  const auto found = std::find(columns.begin(), columns.end(), column);
  return found == columns.end() ? kNoPart : static_cast<int>(found - columns.begin());
}

Handler GridEditing::Add(std::unique_ptr<CellControl> control, std::vector<int> columns,
                         ColumnRules rules) {
  const Widget* const widget = &control->Control();
  bindings_.push_back({std::move(control), std::move(columns), std::move(rules)});
  return [this, widget] { WriteChoice(*widget); };
}

void GridEditing::Bind(int column, ChoiceWidget& list, ColumnRules rules) {
  auto control = MakeCellControl(list, rules.items, rules.text);
  list.on_click = Add(std::move(control), {column}, std::move(rules));
}

void GridEditing::Bind(int column, Slider& slider, Label& shown, ColumnRules rules) {
  slider.on_change = [&slider, &shown,
                      write = Add(MakeCellControl(slider, shown), {column}, std::move(rules))] {
    shown.SetCaption(std::to_string(slider.Value()));
    write();
  };
}

void GridEditing::Bind(int column, TimePicker& picker, ColumnRules rules) {
  picker.on_change = Add(MakeCellControl(picker), {column}, std::move(rules));
}

void GridEditing::BindPair(int hour_column, int minute_column, TimePicker& picker,
                           ColumnRules rules) {
  picker.on_change = Add(MakeHourAndMinute(picker), {hour_column, minute_column}, std::move(rules));
}

const GridEditing::Binding* GridEditing::BindingOf(int column) const {
  const auto found = std::find_if(bindings_.begin(), bindings_.end(), [column](const Binding& it) {
    return it.PartOf(column) != kNoPart;
  });
  return found == bindings_.end() ? nullptr : &*found;
}

int GridEditing::ItemIn(const Binding& binding, int part, int row) const {
  const int column = binding.columns.at(static_cast<std::size_t>(part));
  int item = grid_.Item(row, column);
  if (item == Grid::kNone) item = binding.control->ItemOf(part, grid_.Cell(row, column));
  return binding.control->Has(part, item) ? item : ChoiceWidget::kNone;
}

int GridEditing::ItemAt(int row, int column) const {
  const Binding* const binding = BindingOf(column);
  if (binding == nullptr) return ChoiceWidget::kNone;
  return ItemIn(*binding, binding->PartOf(column), row);
}

void GridEditing::SetItem(int row, int column, int item) {
  const Binding* const binding = BindingOf(column);
  if (binding == nullptr) return;
  grid_.SetCell(row, column, binding->control->TextOf(binding->PartOf(column), item), item);
}

void GridEditing::GoTo(int row, int column) {
  grid_.SetCurrent(row, column);
  ShowCell();
}

void GridEditing::ShowCell() {
  if (before_show) before_show();
  for (const Binding& binding : bindings_) {
    const bool shows = binding.rules.shows == ColumnRules::Reach::kInRow ||
                       binding.PartOf(grid_.Column()) != kNoPart;
    if (!shows || grid_.Row() < grid_.HeaderRows()) continue;
    std::vector<int> items;
    for (int part = 0; part < binding.Parts(); ++part) {
      items.push_back(ItemIn(binding, part, grid_.Row()));
    }
    binding.control->Show(items);
  }
  if (after_show) after_show();
}

void GridEditing::WriteChoice(const Widget& control) {
  const int column = grid_.Column();  // where a rule goes meanwhile does not matter
  for (const Binding& binding : bindings_) {
    if (&binding.control->Control() != &control) continue;
    if (binding.rules.writes == ColumnRules::Reach::kInRow || binding.PartOf(column) != kNoPart) {
      WriteSelectedRows(binding);
    }
  }
}

void GridEditing::WriteSelectedRows(const Binding& binding) {
  std::vector<int> items;
  for (int part = 0; part < binding.Parts(); ++part) {
    items.push_back(binding.control->Chosen(part));
  }
  if (items.front() == ChoiceWidget::kNone) return;
  const int last = grid_.LastSelected();
  for (int row = std::max(grid_.FirstSelected(), grid_.HeaderRows()); row <= last; ++row) {
    if (binding.rules.takes && !binding.rules.takes(row)) continue;
    for (int part = 0; part < binding.Parts(); ++part) {
      const auto place = static_cast<std::size_t>(part);
      grid_.SetCell(row, binding.columns[place], binding.control->TextOf(part, items[place]),
                    items[place]);
    }
    if (binding.rules.written) binding.rules.written(row);
  }
}

bool GridEditing::Takes(int row, int column, const std::string& text) const {
  const Binding* const binding = BindingOf(column);
  if (binding == nullptr || (binding->rules.takes && !binding->rules.takes(row))) return false;
  if (text == grid_.Cell(row, column)) return true;
  const int part = binding->PartOf(column);
  return binding->control->Offers(part, binding->control->ItemOf(part, text));
}

void GridEditing::Paste(int row, int column, const std::string& text) {
  if (text == grid_.Cell(row, column)) return;  // its item, one of several of that text, stays
  const Binding& binding = *BindingOf(column);
  SetItem(row, column, binding.control->ItemOf(binding.PartOf(column), text));
  if (binding.rules.written) binding.rules.written(row);
  if (row == grid_.Row()) ShowCell();
}

}  // namespace quorvel
