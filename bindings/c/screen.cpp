#include <optional>

#include "bindings/c/handles.h"

using namespace quorvel::c;

namespace {

/// A control of a window as its C struct tells of it, with copies of the texts: the visitor may act
/// on the window.
class Told {
 public:
  explicit Told(const quorvel::Widget& widget)
      : name_(widget.Name()),
        caption_(widget.Caption()),
        spoken_(widget.SpokenName()),
        value_(widget.ValueText()),
        items_(ItemsOf(widget)) {
    shown_.kind_name = KindName(widget.Kind());
    shown_.kind = static_cast<std::int32_t>(widget.Kind());
    shown_.visible = widget.Visible() ? 1 : 0;
    shown_.showing = widget.Showing() ? 1 : 0;
    shown_.enabled = widget.Enabled() ? 1 : 0;
    shown_.current = -1;
    if (const auto* list = dynamic_cast<const quorvel::ChoiceWidget*>(&widget)) {
      shown_.current = list->Current();
    } else if (const auto* tabs = dynamic_cast<const quorvel::TabStrip*>(&widget)) {
      shown_.current = tabs->Current();
    } else if (const auto* slider = dynamic_cast<const quorvel::Slider*>(&widget)) {
      shown_.least = slider->Minimum();
      shown_.most = slider->Maximum();
    } else if (const auto* bar = dynamic_cast<const quorvel::ProgressBar*>(&widget)) {
      shown_.most = bar->Maximum();
    } else if (const auto* grid = dynamic_cast<const quorvel::Grid*>(&widget)) {
      TellGrid(*grid);
    }
  }

  /// Valid as long as this stays where it is.
  [[nodiscard]] quorvel_widget Shown() const {
    quorvel_widget shown = shown_;
    shown.name = name_.c_str();
    shown.caption = caption_.c_str();
    shown.spoken = spoken_.c_str();
    shown.value = value_.c_str();
    for (const std::string& item : items_) item_texts_.push_back(item.c_str());
    shown.items = item_texts_.data();
    shown.item_count = item_texts_.size();
    return shown;
  }

 private:
  void TellGrid(const quorvel::Grid& grid) {
    shown_.rows = grid.Rows();
    shown_.columns = grid.Columns();
    shown_.header_rows = grid.HeaderRows();
    shown_.row = grid.Row();
    shown_.column = grid.Column();
    shown_.first_selected = grid.FirstSelected();
    shown_.last_selected = grid.LastSelected();
  }

  std::string name_, caption_, spoken_, value_;
  std::vector<std::string> items_;
  mutable std::vector<const char*> item_texts_;
  quorvel_widget shown_{};
};

struct Window {
  std::string name;
  std::string caption;
  bool takes_input;
};

quorvel_window Shown(const Window& window) {
  quorvel_window shown{};
  shown.name = window.name.c_str();
  shown.caption = window.caption.c_str();
  shown.takes_input = window.takes_input ? 1 : 0;
  return shown;
}

struct Item {
  const quorvel::MenuItem* item;
  int depth;
};

void Collect(const quorvel::MenuItem& menu, int depth, std::vector<Item>& items) {
  for (const quorvel::MenuItem& item : menu.children) {
    items.push_back({&item, depth});
    Collect(item, depth + 1, items);
  }
}

quorvel_menu_item Shown(const Item& it) {
  quorvel_menu_item shown{};
  shown.name = it.item->name.c_str();
  shown.caption = it.item->caption.c_str();
  shown.depth = it.depth;
  shown.separator = it.item->separator ? 1 : 0;
  shown.visible = it.item->visible ? 1 : 0;
  shown.enabled = it.item->enabled ? 1 : 0;
  shown.checked = it.item->checked ? 1 : 0;
  shown.opens = it.item->children.empty() ? 0 : 1;
  return shown;
}

const quorvel::Widget& Find(const Platform& platform, const char* name) {
  const auto user = platform.User();
  const quorvel::Widget* const widget = user.FindControl(Given(name, "the name"));
  if (widget == nullptr) Refuse(QUORVEL_NOT_FOUND, user.NotFound(name));
  return *widget;
}

}  // namespace

quorvel_result quorvel_platform_windows(quorvel_platform* platform, quorvel_visit_window visit,
                                        void* user) {
  return Run([&] {
    const auto held = Of(platform);
    std::vector<Window> windows;
    for (const quorvel::Dialog* it : held->Windows()) {
      windows.push_back({it->Name(), it->Caption(), held->TakesInput(*it)});
    }
    ShowEach(
        windows, [](const auto& it) { return Shown(it); }, visit, user);
  });
}

quorvel_result quorvel_platform_widgets(quorvel_platform* platform, const char* window,
                                        quorvel_visit_widget visit, void* user) {
  return Run([&] {
    const auto held = Of(platform);
    const auto name = OrEmpty(window);
    const quorvel::Dialog* const dialog = held->User().FindWindow(name);
    if (dialog == nullptr) Refuse(QUORVEL_NOT_FOUND, quorvel::NamedUser::NoWindow(name));
    std::vector<Told> controls;
    for (const quorvel::Widget* it : dialog->Widgets()) controls.emplace_back(*it);
    ShowEach(
        controls, [](const Told& it) { return it.Shown(); }, visit, user);
  });
}

quorvel_result quorvel_platform_widget(quorvel_platform* platform, const char* name,
                                       quorvel_visit_widget visit, void* user) {
  return Run([&] {
    const auto held = Of(platform);
    const Told told(Find(*held, name));
    ShowEach(
        std::span(&told, 1), [](const Told& it) { return it.Shown(); }, visit, user);
  });
}

quorvel_result quorvel_platform_cell(quorvel_platform* platform, const char* grid, int32_t row,
                                     int32_t column, char* buffer, size_t size, size_t* needed) {
  return Run([&] {
    const auto held = Of(platform);
    const auto* const found = dynamic_cast<const quorvel::Grid*>(&Find(*held, grid));
    if (found == nullptr) Refuse(QUORVEL_OTHER_KIND, std::string(grid) + " is no grid");
    if (row < 0 || row >= found->Rows() || column < 0 || column >= found->Columns()) {
      Refuse(QUORVEL_NO_SUCH_PLACE, std::string(grid) + " has no such place");
    }
    Put({buffer, size, needed}, found->Cell(row, column));
  });
}

quorvel_result quorvel_platform_menu(quorvel_platform* platform, quorvel_visit_menu_item visit,
                                     void* user) {
  return Run([&] {
    const auto held = Of(platform);
    if (!held->MenuIsUp()) Refuse(QUORVEL_NOT_FOUND, "no menu is up");
    const quorvel::MenuItem menu = held->Menu().Root();  // the visitor may take it down
    std::vector<Item> items;
    Collect(menu, 0, items);
    ShowEach(
        items, [](const auto& it) { return Shown(it); }, visit, user);
  });
}
