#pragma once

#include <string>
#include <utility>
#include <vector>

#include "quorvel/export.h"
#include "quorvel/widgets/control_array.h"
#include "quorvel/widgets/widget.h"

namespace quorvel {

/// Where the controls of a dialog stand, written so that it reads like the window:
///
///     Column(Tabs(SSTab1, Page("Titles", Row(Framed(Frame2, Lines(m_CameraTitle))))),
///            Row(Stretch(), cmd_OK, cmd_Cancel))
///
/// A control array stands for all its elements. Hidden controls take no space. A grid ends with its
/// last column and row, a list with its last item, and a frame with its content, unless that is a
/// grid; space that is left over stays empty, at the right and at the bottom.
struct Layout {
  enum class Kind {
    kWidget,   ///< one control; a frame or tab strip brings its own contents
    kRow,      ///< side by side
    kColumn,   ///< one below the other
    kLines,    ///< one below the other, every part one text-box line high, so that the lines of
               ///< frames side by side meet
    kStretch,  ///< takes the space that is left
  };
  Kind kind = Kind::kColumn;
  Widget* widget = nullptr;
  std::vector<Layout> parts;
};

namespace layout_detail {

inline void Add(Layout& to, Layout part) { to.parts.push_back(std::move(part)); }
inline void Add(Layout& to, Widget& widget) {
  to.parts.push_back({Layout::Kind::kWidget, &widget, {}});
}
template <class Control>
void Add(Layout& to, ControlArray<Control>& controls) {
  for (Control& control : controls) Add(to, control);
}
template <class... Parts>
Layout Make(Layout::Kind kind, Parts&&... parts) {
  Layout layout{kind, nullptr, {}};
  (Add(layout, std::forward<Parts>(parts)), ...);
  return layout;
}

}  // namespace layout_detail

template <class... Parts>
Layout Row(Parts&&... parts) {
  return layout_detail::Make(Layout::Kind::kRow, std::forward<Parts>(parts)...);
}
template <class... Parts>
Layout Column(Parts&&... parts) {
  return layout_detail::Make(Layout::Kind::kColumn, std::forward<Parts>(parts)...);
}
template <class... Parts>
Layout Lines(Parts&&... parts) {
  return layout_detail::Make(Layout::Kind::kLines, std::forward<Parts>(parts)...);
}
inline Layout Stretch() { return {Layout::Kind::kStretch, nullptr, {}}; }

/// A label and the control that it names, one below the other or side by side.
template <class Control>
Layout Labelled(Label& label, Control& control) {
  control.SetLabel(label);
  return Column(label, control);
}
template <class Control>
Layout LabelledRow(Label& label, Control& control) {
  control.SetLabel(label);
  return Row(label, control);
}

/// A captioned border around a group of controls.
class QUORVEL_API Frame : public Widget {
 public:
  Frame(Dialog& dialog, std::string name, std::string caption = {});
  [[nodiscard]] const Layout& Content() const { return content_; }
  /// False around a single line without a caption: such a frame only holds it together.
  [[nodiscard]] bool HasBorder() const;
  /// Sets what stands inside; before the dialog's own layout is set.
  void SetContent(Layout content) { content_ = std::move(content); }

 private:
  Layout content_;
};

/// A frame with its contents, as part of a layout.
inline Layout Framed(Frame& frame, Layout content) {
  frame.SetContent(std::move(content));
  return {Layout::Kind::kWidget, &frame, {}};
}

/// One page of a tab strip.
struct Page {
  std::string caption;
  Layout content;
  bool visible = true;
  bool changed = false;  ///< something on it is not as it was when the window opened
};

/// Pages behind one another, numbered from 0; one is in front.
class QUORVEL_API TabStrip : public Widget {
 public:
  TabStrip(Dialog& dialog, std::string name);
  [[nodiscard]] const std::vector<Page>& Pages() const { return pages_; }
  [[nodiscard]] int Count() const { return static_cast<int>(pages_.size()); }
  /// The page in front.
  [[nodiscard]] int Current() const { return current_; }
  /// True when `page` is in front and not hidden.
  [[nodiscard]] bool InFront(int page) const;
  [[nodiscard]] std::string ValueText() const override;

  /// Sets the pages; before the dialog's own layout is set. The first that is not
  /// hidden comes to the front.
  void SetPages(std::vector<Page> pages);
  void SetPageCaption(int page, std::string caption);
  /// Shows or hides a page. When the one in front is hidden, the first that is not comes to the
  /// front.
  void SetPageVisible(int page, bool visible);
  /// Whether something on a page is not as it was when the window opened. Views mark its tab.
  [[nodiscard]] bool PageChanged(int page) const {
    return pages_.at(static_cast<std::size_t>(page)).changed;
  }
  void SetPageChanged(int page, bool changed);
  /// Brings a page to the front; nothing happens for a hidden one.
  void SetCurrent(int page);

  /// A click on a page's tab; on_change follows when another page comes to the front.
  Answer Choose(int page);
  Handler on_change;

 private:
  /// True for a page that is there and not hidden.
  [[nodiscard]] bool CanBeInFront(int page) const;
  /// Brings the first page that is not hidden to the front where the present one is.
  void LeaveHiddenPage();
  std::vector<Page> pages_;
  int current_ = 0;
};

/// A tab strip with its pages, as part of a layout.
template <class... Pages>
Layout Tabs(TabStrip& tabs, Pages&&... pages) {
  std::vector<Page> list;
  (list.push_back(std::forward<Pages>(pages)), ...);
  tabs.SetPages(std::move(list));
  return {Layout::Kind::kWidget, &tabs, {}};
}

}  // namespace quorvel
