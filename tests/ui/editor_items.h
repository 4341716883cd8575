#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tests/host/test_host.h"

namespace quorvel {

/// The items of a menu that can be chosen and open an editor, those of its submenus included.
inline std::vector<std::string> EditorItems(const MenuItem& menu) {
  static const std::set<std::string> others = {"mnu_Exit", "mnuActGrid", "mnu_FPanelLock",
                                               "mnu_Factory"};
  std::vector<std::string> names;
  for (const MenuItem& item : menu.children) {
    if (item.separator || !item.visible || !item.enabled || others.contains(item.name)) continue;
    if (item.children.empty()) names.push_back(item.name);
    for (const std::string& name : EditorItems(item)) names.push_back(name);
  }
  return names;
}

/// Opens the editor of an item; a null pointer when nothing opens.
inline std::shared_ptr<Dialog> OpenEditor(TestHost& host, const std::string& item) {
  host.OpenMenu();
  const auto windows = host.platform.Windows().size();
  EXPECT_EQ(host.platform.ChooseMenu(item), Answer::kDone);
  if (host.platform.Windows().size() != windows + 1) return nullptr;
  return host.platform.Windows().back()->shared_from_this();
}

/// The pages of an editor; a null pointer when it has none.
inline TabStrip* TabsOf(const Dialog& editor) {
  for (Widget* const widget : editor.Widgets()) {
    if (auto* const tabs = dynamic_cast<TabStrip*>(widget)) return tabs;
  }
  return nullptr;
}

}  // namespace quorvel
