#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "quorvel/identity.h"
#include "quorvel/widgets.h"

namespace quorvel {

struct Context;
class Editor;

/// An editor and the item of the menu that opens it.
struct MenuEditor {
  std::string_view item;
  std::shared_ptr<Editor> (*create)(Context&);
  /// Whether it is the item's editor for a device: an item may have one for each kind of model.
  bool (*serves)(const Identity& device);
  /// What the message begins with when it does not open, in place of "Error found in " and the
  /// item; empty for that.
  std::string_view failure = {};
};

/// All editors, in any order.
[[nodiscard]] std::span<const MenuEditor> MenuEditors();
/// The editor that an item opens for a device, or a null pointer.
[[nodiscard]] const MenuEditor* EditorOf(std::string_view item, const Identity& device);

}  // namespace quorvel
