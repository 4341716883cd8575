#include "fuzz/random_user.h"

#include "tests/ui/use.h"

namespace quorvel::fuzz {

namespace {

/// A user who does what the input says, also what cannot be done.
struct User {
  ByteSource& in;
  int Below(int count) { return in.Below(count); }
  /// From one before the first place to one behind the last.
  int Place(int count) { return in.Below(count + 2) - 1; }
  int Year() { return 2000 + Place(100); }
  std::string Text(const Widget& /*control*/) {
    const auto bytes = in.Take(static_cast<std::size_t>(in.Below(24)));
    return {bytes.begin(), bytes.end()};
  }
};

void CollectNames(const MenuItem& item, std::vector<std::string>& names) {
  for (const MenuItem& child : item.children) {
    names.push_back(child.name);
    CollectNames(child, names);
  }
}

}  // namespace

void UseOneOf(Dialog& dialog, std::initializer_list<const char*> names, ByteSource& in) {
  if (in.Empty()) return;
  const char* const name = names.begin()[in.Below(static_cast<int>(names.size()))];
  User user{in};
  if (Widget* const widget = dialog.FindWidget(name)) Use(*widget, user);
}

void UseAny(Dialog& dialog, ByteSource& in) {
  User user{in};
  const auto& widgets = dialog.Widgets();
  const auto choice = static_cast<std::size_t>(in.Below(static_cast<int>(widgets.size()) + 1));
  if (choice < widgets.size()) {
    Use(*widgets[choice], user);
  } else {
    dialog.CloseWindow();
  }
}

void UseMenu(Desk& desk, ByteSource& in) {
  if (!desk.MenuIsUp()) return;
  std::vector<std::string> names;
  CollectNames(desk.Menu().Root(), names);
  const auto choice = static_cast<std::size_t>(in.Below(static_cast<int>(names.size()) + 1));
  if (choice < names.size()) {
    desk.ChooseMenu(names[choice]);
  } else {
    desk.DismissMenu();
  }
}

}  // namespace quorvel::fuzz
