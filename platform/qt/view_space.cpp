#include "platform/qt/view_space.h"

#include <algorithm>

#include "quorvel/widgets/choice.h"
#include "quorvel/widgets/grid.h"

namespace quorvel::qt {

namespace {

constexpr int kLarge = 4000;
constexpr int kSmall = 1000;
constexpr int kLittle = 40;  // beside something large, next to nothing

/// The largest share of the parts. A stretch fills the row or column that it is in, and claims no
/// space for the whole.
int MostOf(const Layout& layout, int (*share)(const Layout&)) {
  int most = 0;
  for (const Layout& part : layout.parts) {
    if (part.kind != Layout::Kind::kStretch) most = std::max(most, share(part));
  }
  return most;
}

}  // namespace

int ShareAcross(const Layout& layout) {
  if (layout.kind == Layout::Kind::kStretch) return kLarge;
  if (layout.kind != Layout::Kind::kWidget) return MostOf(layout, &ShareAcross);
  switch (layout.widget->Kind()) {
    case WidgetKind::kGrid:
    case WidgetKind::kTabStrip:
    case WidgetKind::kProgressBar:
    case WidgetKind::kStatusBar: return kLarge;
    case WidgetKind::kFrame:
      return std::max(kSmall, ShareAcross(static_cast<const Frame*>(layout.widget)->Content()));
    case WidgetKind::kTextBox: return kSmall;
    default: return 0;
  }
}

int ShareDown(const Layout& layout) {
  if (layout.kind == Layout::Kind::kStretch) return kLarge;
  if (layout.kind != Layout::Kind::kWidget) return MostOf(layout, &ShareDown);
  switch (layout.widget->Kind()) {
    case WidgetKind::kGrid: {
      const auto& grid = static_cast<const Grid&>(*layout.widget);
      return grid.Rows() - grid.HeaderRows() > kMostGridRows ? kLarge : 0;
    }
    case WidgetKind::kTabStrip: return kLarge;
    case WidgetKind::kListBox: {
      const auto& list = static_cast<const ListBox&>(*layout.widget);
      return list.Rows() == 0 && list.Count() > kMostListRows ? kLittle : 0;
    }
    case WidgetKind::kFrame: return ShareDown(static_cast<const Frame*>(layout.widget)->Content());
    default: return 0;
  }
}

bool FillsSpaceDown(const Layout& layout) { return ShareDown(layout) >= kLarge; }

bool IsOneLine(const Layout& layout) {
  if (layout.kind == Layout::Kind::kRow) return std::ranges::all_of(layout.parts, &IsOneLine);
  if (layout.kind != Layout::Kind::kWidget) return layout.kind == Layout::Kind::kStretch;
  switch (layout.widget->Kind()) {
    case WidgetKind::kGrid:
    case WidgetKind::kListBox:
    case WidgetKind::kTabStrip: return false;
    case WidgetKind::kFrame:
      return layout.widget->Caption().empty() &&
             IsOneLine(static_cast<const Frame*>(layout.widget)->Content());
    default: return true;
  }
}

}  // namespace quorvel::qt
