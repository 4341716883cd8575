#include "quorvel/widgets/placement.h"

#include <algorithm>

#include "quorvel/widgets/choice.h"
#include "quorvel/widgets/grid.h"

namespace quorvel {

namespace {

/// The largest claim of the parts. A stretch fills the row or column that it is in, and claims no
/// space for the whole.
Space MostOf(const Layout& layout, Space (*claim)(const Layout&)) {
  Space most = Space::kOwn;
  for (const Layout& part : layout.parts) {
    if (part.kind != Layout::Kind::kStretch) most = std::max(most, claim(part));
  }
  return most;
}

Space ClaimAcross(const Layout& layout) {
  if (layout.kind == Layout::Kind::kStretch) return Space::kMost;
  if (layout.kind != Layout::Kind::kWidget) return MostOf(layout, &ClaimAcross);
  switch (layout.widget->Kind()) {
    case WidgetKind::kGrid:
    case WidgetKind::kTabStrip:
    case WidgetKind::kProgressBar:
    case WidgetKind::kStatusBar: return Space::kMost;
    case WidgetKind::kFrame: {
      const Layout& content = static_cast<const Frame*>(layout.widget)->Content();
      return std::max(Space::kSome, ClaimAcross(content));
    }
    case WidgetKind::kTextBox: return Space::kSome;
    default: return Space::kOwn;
  }
}

Space ClaimDown(const Layout& layout) {
  if (layout.kind == Layout::Kind::kStretch) return Space::kMost;
  if (layout.kind != Layout::Kind::kWidget) return MostOf(layout, &ClaimDown);
  switch (layout.widget->Kind()) {
    case WidgetKind::kGrid: {
      const auto& grid = static_cast<const Grid&>(*layout.widget);
      return grid.Rows() - grid.HeaderRows() > kMostGridRows ? Space::kMost : Space::kOwn;
    }
    case WidgetKind::kTabStrip: return Space::kMost;
    case WidgetKind::kListBox: {
      const auto& list = static_cast<const ListBox&>(*layout.widget);
      return list.Rows() == 0 && list.Count() > kMostListRows ? Space::kLittle : Space::kOwn;
    }
    case WidgetKind::kFrame: return ClaimDown(static_cast<const Frame*>(layout.widget)->Content());
    default: return Space::kOwn;
  }
}

bool IsOneLine(const Layout& layout) {
  if (layout.kind == Layout::Kind::kRow) return std::ranges::all_of(layout.parts, &IsOneLine);
  if (layout.kind != Layout::Kind::kWidget) return layout.kind == Layout::Kind::kStretch;
  switch (layout.widget->Kind()) {
    case WidgetKind::kGrid:
    case WidgetKind::kListBox:
    case WidgetKind::kTabStrip: return false;
    case WidgetKind::kFrame: return !static_cast<const Frame*>(layout.widget)->HasBorder();
    default: return true;
  }
}

/// Of one control: what it needs of a row or column.
Placement PlacementOf(const Layout& part, bool in_row, bool in_tall_row) {
  Placement it{.space = in_row ? ClaimAcross(part) : ClaimDown(part)};
  if (part.kind != Layout::Kind::kWidget) return it;
  const WidgetKind kind = part.widget->Kind();
  it.one_line = IsOneLine(part);
  it.ends = kind == WidgetKind::kGrid || (in_row && kind == WidgetKind::kListBox);
  // A frame ends with its content, unless that is the better the taller it is.
  const bool frame_ends = kind == WidgetKind::kFrame && ClaimDown(part) != Space::kMost;
  it.at_top = in_row && (frame_ends || (it.one_line && in_tall_row));
  return it;
}

bool BeginsWith(WidgetKind kind, const Layout& part) {
  return part.kind == Layout::Kind::kRow && part.parts.size() > 1 &&
         part.parts[0].kind == Layout::Kind::kWidget && part.parts[0].widget->Kind() == kind;
}

}  // namespace

bool Frame::HasBorder() const { return !Caption().empty() || !IsOneLine(content_); }

std::vector<Placement> PlacementsIn(const Layout& layout) {
  const bool row = layout.kind == Layout::Kind::kRow;
  const bool tall = row && !std::ranges::all_of(layout.parts, &IsOneLine);
  std::vector<Placement> placements;
  for (const Layout& part : layout.parts) placements.push_back(PlacementOf(part, row, tall));
  return placements;
}

std::vector<std::vector<std::size_t>> RowsThatBeginAlike(const Layout& column) {
  std::vector<std::vector<std::size_t>> groups;
  if (column.kind == Layout::Kind::kRow) return groups;
  for (const WidgetKind kind :
       {WidgetKind::kLabel, WidgetKind::kCheckBox, WidgetKind::kOptionButton}) {
    std::vector<std::size_t>& group = groups.emplace_back();
    for (std::size_t i = 0; i < column.parts.size(); ++i) {
      if (BeginsWith(kind, column.parts[i])) group.push_back(i);
    }
    if (group.empty()) groups.pop_back();
  }
  return groups;
}

}  // namespace quorvel
