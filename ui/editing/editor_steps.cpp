#include "ui/editing/editor_steps.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "ui/context.h"
#include "ui/editing/editor.h"

namespace quorvel {

EditedValues EditorSteps::Values() const {
  EditedValues values;
  editor_.fields_.ForEach(
      [&values](const Field& field, int line) { field.AddValue(line, values); });
  for (const auto& it : editor_.counted_boxes_) values.push_back({it.box->Checked() ? 1 : 0, {}});
  for (const auto& number : editor_.counted_) values.push_back({number(), {}});
  return values;
}

bool EditorSteps::AreCurrent() const { return editor_.BelongsToImage(); }

std::vector<FieldChange> EditorSteps::Changes() const {
  std::vector<FieldChange> changes;
  editor_.fields_.ForEach(
      [&changes](const Field& field, int line) { field.AddChanges(line, changes); });
  for (const auto& it : editor_.counted_boxes_) {
    if (it.box->Checked() != it.opened) changes.push_back({.control = it.box});
  }
  return changes;
}

ChangeMark EditorSteps::MarkOf(const FieldChange& change) const {
  const EditorWords& words = editor_.context_.texts.OfEditors();
  if (!change.was) return {{}, words.changed};
  return {*change.was,
          change.was->empty() ? words.changed_from_nothing : words.changed_from + *change.was};
}

void EditorSteps::MarkChanges() {
  std::map<const Widget*, ChangeMark> marks;
  std::map<const Widget*, Grid::CellChanges> cells;
  for (const FieldChange& change : Changes()) {
    if (change.row != Grid::kNone) {
      cells[change.control][{change.row, change.column}] = MarkOf(change);
      continue;
    }
    const auto [mark, fresh] = marks.emplace(change.control, MarkOf(change));
    // One control of several lines: they may have read differently.
    if (!fresh && change.was && mark->second.was != *change.was) mark->second = MarkOf({});
  }
  changed_ = !marks.empty() || !cells.empty();
  for (Widget* const widget : editor_.Widgets()) {
    if (auto* const grid = dynamic_cast<Grid*>(widget)) {
      grid->SetCellChanges(std::move(cells[widget]));
    } else {
      const auto mark = marks.find(widget);
      widget->SetChange(mark == marks.end() ? std::nullopt : std::optional(mark->second));
    }
  }
  MarkPages();
}

void EditorSteps::MarkPages() {
  std::set<std::pair<const Widget*, int>> changed;
  for (const Widget* const widget : editor_.Widgets()) {
    const auto* const grid = dynamic_cast<const Grid*>(widget);
    if (grid == nullptr ? !widget->Change() : !grid->HasChanges()) continue;
    for (const Widget* it = widget; it->Container() != nullptr; it = it->Container()) {
      changed.emplace(it->Container(), it->PageInContainer());
    }
  }
  for (Widget* const widget : editor_.Widgets()) {
    auto* const tabs = dynamic_cast<TabStrip*>(widget);
    for (int page = 0; tabs != nullptr && page < tabs->Count(); ++page) {
      tabs->SetPageChanged(page, changed.contains({tabs, page}));
    }
  }
}

std::vector<EditorSteps::Place> EditorSteps::EditedBy(const Widget& control) const {
  std::vector<Place> places;
  editor_.fields_.ForEach([&](Field& field, int line) {
    if (field.IsEditedBy(control, line)) places.push_back({&field, line});
  });
  return places;
}

bool EditorSteps::Edits(const Widget& control) const {
  const auto is_box = [&control](const auto& it) { return it.box == &control; };
  return std::ranges::any_of(editor_.counted_boxes_, is_box) || !EditedBy(control).empty();
}

Answer EditorSteps::PutBack(Widget& control, PutBackTo to) {
  for (const auto& it : editor_.counted_boxes_) {
    if (it.box != &control) continue;
    if (to == PutBackTo::kDevice) return Answer::kNoSuchPlace;
    return it.box->Checked() == it.opened ? Answer::kDone : it.box->Click();
  }
  const std::vector<Place> places = EditedBy(control);
  if (places.empty()) {
    return control.Kind() == WidgetKind::kGrid ? Answer::kNoSuchPlace : Answer::kOtherKind;
  }
  const auto device = to == PutBackTo::kDevice ? editor_.context_.device.OfDevice() : nullptr;
  if (to == PutBackTo::kDevice && device == nullptr) return Answer::kNoSuchPlace;
  for (const Place& it : places) {
    if (device != nullptr) {
      it.field->TakeFrom(device->record, it.line);
    } else {
      it.field->PutBack(it.line);
    }
  }
  if (places.front().field->Editing() != nullptr) {
    FollowInGrids(places, to);
  } else {
    FollowIn(control, places, to);
  }
  return Answer::kDone;
}

void EditorSteps::FollowInGrids(const std::vector<Place>& places, PutBackTo to) {
  std::map<GridEditing*, std::set<int>> rows;
  for (const Place& it : places) rows[it.field->Editing()].insert(it.field->RowOf(it.line));
  // What a choice has emptied comes back with the choice.
  editor_.fields_.ForEach([&](Field& field, int line) {
    const auto found = rows.find(field.Editing());
    const bool here = found != rows.end() && found->second.contains(field.RowOf(line));
    if (to == PutBackTo::kOpened && here && field.WasEmptied(line)) field.PutBack(line);
  });
  for (const auto& [editing, changed] : rows) editing->FollowPutBack(changed);
}

/// A handler may know better: what was put back stays.
void EditorSteps::FollowIn(Widget& control, const std::vector<Place>& places, PutBackTo to) {
  Widget* chosen = &control;
  if (const auto* const option = dynamic_cast<OptionButton*>(&control);
      option != nullptr && option->GetGroup() != nullptr) {
    const auto found = std::ranges::find_if(*option->GetGroup(), &OptionButton::Selected);
    if (found != option->GetGroup()->end()) chosen = &*found;
  }
  chosen->RaiseChosen();
  for (const Place& it : places) {
    if (to == PutBackTo::kOpened && it.field->Differs(it.line)) it.field->PutBack(it.line);
  }
}

}  // namespace quorvel
