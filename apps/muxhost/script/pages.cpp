#include "muxhost/script/pages.h"

#include <algorithm>
#include <cstdlib>
#include <span>
#include <utility>
#include <vector>

#include "muxhost/script/report.h"

namespace quorvel::muxhost {

namespace {

using Controls = std::vector<const Widget*>;

constexpr const char* kStep = "  ";

/// The name without the index of an element of an array.
std::string ArrayName(const Widget& widget) {
  return widget.Name().substr(0, widget.Name().find('('));
}
std::string Index(const Widget& widget) {
  const auto open = widget.Name().find('(');
  return open == std::string::npos
             ? ""
             : widget.Name().substr(open + 1, widget.Name().size() - open - 2);
}

/// Controls of a layout in their order, without those inside frames and pages.
void Collect(const Layout& layout, Controls& controls) {
  if (layout.widget != nullptr) controls.push_back(layout.widget);
  for (const Layout& part : layout.parts) Collect(part, controls);
}

/// The first control with the others of its array that have its state; takes them away.
Controls TakeGroup(Controls& controls) {
  const Widget& first = *controls.front();
  Controls group, others;
  for (const Widget* it : controls) {
    const bool alike = ArrayName(*it) == ArrayName(first) && it->Visible() == first.Visible() &&
                       it->Enabled() == first.Enabled();
    (alike ? group : others).push_back(it);
  }
  controls = std::move(others);
  return group;
}

using Texts = std::span<const std::string>;

/// How many of the first texts are equal.
std::size_t EqualTexts(Texts texts) {
  const auto other = std::ranges::find_if(texts, [&](const auto& it) { return it != texts[0]; });
  return static_cast<std::size_t>(other - texts.begin());
}

/// How many of the first texts are numbers that count up by 1.
std::size_t CountingTexts(Texts texts) {
  const long first = std::strtol(texts[0].c_str() + 1, nullptr, 10);  // behind the quote
  std::size_t count = 0;
  while (count < texts.size() &&
         texts[count] == Quoted(std::to_string(first + static_cast<long>(count)))) {
    ++count;
  }
  return count;
}

/// Quoted texts behind one another; three and more that count up as "1" to "250", or that are equal
/// as "" x 12.
std::string List(Texts texts) {
  constexpr std::size_t kShortest = 3;
  std::string list;
  while (!texts.empty()) {
    const std::size_t equal = EqualTexts(texts), counting = CountingTexts(texts);
    std::size_t taken = 1;
    list += (list.empty() ? "" : ", ") + texts[0];
    if (equal >= kShortest) {
      taken = equal;
      list += " x " + std::to_string(equal);
    } else if (counting >= kShortest) {
      taken = counting;
      list += " to " + texts[taken - 1];
    }
    texts = texts.subspan(taken);
  }
  return list;
}

std::string ChangeOf(const Widget& widget) {
  return widget.Change() ? " [" + widget.Change()->note + "]" : "";
}

/// What a control says of itself among others of its array: caption and value.
std::string Shortly(const Widget& widget) {
  const bool box = widget.Kind() == WidgetKind::kCheckBox;
  if (box || widget.Kind() == WidgetKind::kOptionButton) {
    if (widget.Caption().empty()) return widget.ValueText();
    return (widget.ValueText() == "on" ? "*" : "") + Quoted(widget.Caption());
  }
  return Quoted(widget.Kind() == WidgetKind::kTextBox ? widget.ValueText() : widget.Caption());
}

/// A line for each column: number, header, least width, cells.
std::vector<std::string> Columns(const Grid& grid) {
  std::vector<std::string> lines;
  for (int column = 0; column < grid.Columns(); ++column) {
    std::vector<std::string> cells;
    for (int row = grid.HeaderRows(); row < grid.Rows(); ++row) {
      const ChangeMark* const change = grid.CellChange(row, column);
      const std::string mark = change == nullptr ? "" : " [" + change->note + "]";
      cells.push_back(Quoted(grid.Cell(row, column)) + mark);
    }
    lines.push_back(std::to_string(column) + " " + Quoted(grid.ColumnName(column)) + " wide " +
                    std::to_string(grid.LeastWidth(column)) + ": " + List(cells));
  }
  return lines;
}

std::string Value(const Widget& widget) {
  if (const auto* list = dynamic_cast<const ChoiceWidget*>(&widget)) {
    std::vector<std::string> items;
    for (const std::string& item : list->Items()) items.push_back(Quoted(item));
    return " = " + list->ValueText() + (items.empty() ? "" : ": " + List(items));
  }
  if (const auto* grid = dynamic_cast<const Grid*>(&widget)) {
    return " at " + std::to_string(grid->Row()) + "," + std::to_string(grid->Column());
  }
  const std::string value = widget.ValueText();
  if (widget.Kind() == WidgetKind::kTextBox) return " = " + Quoted(value);
  return value.empty() || widget.Kind() == WidgetKind::kTabStrip ? "" : " = " + value;
}

/// What a view needs to know besides.
std::string Measures(const Widget& widget) {
  std::string text;
  const auto add = [&text](const char* what, int value) {
    if (value > 0) text += what + std::to_string(value);
  };
  if (const auto* box = dynamic_cast<const TextBox*>(&widget)) {
    add(" max ", box->MaxLength());
    if (box->ShownLength() != box->MaxLength()) add(" wide ", box->ShownLength());
  }
  if (const auto* list = dynamic_cast<const ListBox*>(&widget)) add(" lines ", list->Rows());
  return text;
}

/// What screen readers say where it is not the caption: of an array, what stands before the caption
/// or number of each.
std::string Spoken(const Controls& group) {
  const Widget& first = *group.front();
  if (first.Kind() == WidgetKind::kFrame) return "";
  const Widget* const label = first.NamingLabel();
  if (first.SpokenName() == (label == nullptr ? first : *label).Caption()) return "";
  std::string each = first.Caption();
  if (each.empty() && !Index(first).empty()) each = std::to_string(std::stoi(Index(first)) + 1);
  std::string spoken = first.SpokenName();
  const bool before_each = !each.empty() && spoken.ends_with(" " + each);
  if (before_each) spoken.resize(spoken.size() - each.size());
  return " spoken " + Quoted(spoken + (before_each ? "..." : ""));
}

std::string Marks(const Widget& widget) {
  std::string marks;
  if (!widget.Enabled()) marks += " [disabled]";
  if (widget.KeepsPlace()) marks += " [keeps its place]";
  if (widget.Owner().DefaultButton() == &widget) marks += " [default]";
  if (widget.Owner().CancelButton() == &widget) marks += " [cancel]";
  return marks;
}

/// The label that names a control and stands beside it; those of arrays have a line of their own.
const Widget* LabelBeside(const Widget& widget, const Controls& around) {
  const bool is = widget.Visible() && Index(widget).empty() &&
                  std::ranges::find(around, widget.NamingLabel()) != around.end();
  return is && widget.NamingLabel()->Visible() ? widget.NamingLabel() : nullptr;
}

std::string Names(const Controls& group) {
  const std::string first = Index(*group.front());
  if (first.empty()) return group.front()->Name();
  const std::string last = group.size() > 1 ? "-" + Index(*group.back()) : "";
  return ArrayName(*group.front()) + "(" + first + last + ")";
}

std::string Describe(const Controls& group, const Widget* label) {
  const Widget& first = *group.front();
  std::string line = Names(group) + " " + KindName(first.Kind());
  if (label != nullptr) line += " of " + label->Name() + " " + Quoted(label->Caption());
  const bool single = Index(first).empty();
  if (single && !first.Caption().empty()) line += " " + Quoted(first.Caption());
  line += Marks(first) + Measures(first) + Spoken(group);
  if (single) return line + ChangeOf(first) + Value(first);
  std::vector<std::string> values;
  for (const Widget* it : group) values.push_back(Shortly(*it) + ChangeOf(*it));
  return line + " = " + List(values);
}

/// Lines that say what a layout holds.
std::vector<std::string> Contents(const Layout& layout, const std::set<int>& pages);

/// Lines that say what stands inside a control.
std::vector<std::string> Inside(const Widget& widget, const std::set<int>& pages) {
  if (const auto* grid = dynamic_cast<const Grid*>(&widget)) return Columns(*grid);
  if (const auto* frame = dynamic_cast<const Frame*>(&widget)) {
    return Contents(frame->Content(), pages);
  }
  std::vector<std::string> lines;
  const auto* tabs = dynamic_cast<const TabStrip*>(&widget);
  for (int i = 0; tabs != nullptr && i < tabs->Count(); ++i) {
    const Page& page = tabs->Pages()[static_cast<std::size_t>(i)];
    lines.push_back((i == tabs->Current() ? "*" : "") + std::to_string(i) + " " +
                    Quoted(page.caption) + (page.visible ? "" : " [hidden]") +
                    (page.changed ? " [changed]" : ""));
    if (!page.visible || !(pages.empty() || pages.contains(i))) continue;
    for (const std::string& line : Contents(page.content, pages)) lines.push_back(kStep + line);
  }
  return lines;
}

std::vector<std::string> Contents(const Layout& layout, const std::set<int>& pages) {
  Controls controls;
  Collect(layout, controls);
  Controls labels;
  for (const Widget* it : controls) labels.push_back(LabelBeside(*it, controls));
  std::erase_if(controls, [&labels](const Widget* it) {
    return std::ranges::find(labels, it) != labels.end();
  });
  std::vector<std::string> lines;
  std::string hidden;
  while (!controls.empty()) {
    const Controls group = TakeGroup(controls);
    const Widget& first = *group.front();
    if (!first.Visible()) {
      hidden += (hidden.empty() ? "" : ", ") + Names(group);
      continue;
    }
    const bool labelled = std::ranges::find(labels, first.NamingLabel()) != labels.end();
    lines.push_back(Describe(group, labelled ? first.NamingLabel() : nullptr));
    const auto inside = Inside(first, pages);
    if (first.Kind() == WidgetKind::kFrame && inside.size() == 1) {
      lines.back() += ": " + inside.front();
    } else {
      for (const std::string& line : inside) lines.push_back(kStep + line);
    }
  }
  if (!hidden.empty()) lines.push_back("hidden: " + hidden);
  return lines;
}

}  // namespace

std::string DescribePages(const Dialog& dialog, const std::set<int>& pages) {
  std::string text = dialog.Name() + " " + Quoted(dialog.Caption()) + '\n';
  for (const std::string& line : Contents(dialog.Contents(), pages)) {
    text += kStep + line + '\n';
  }
  return text;
}

}  // namespace quorvel::muxhost
