#pragma once

#include "ui/editing/editor.h"

namespace quorvel {

/// A page of an editor that is large enough to be a class of its own. It declares and binds its
/// controls in its constructor; the editor fills and writes them with its own, pages in the order
/// of their construction.
class EditorPage : public EditorPart {
 protected:
  explicit EditorPage(Editor& editor, bool exists = true) : EditorPart(editor, exists) {}
  ~EditorPage() = default;
};

}  // namespace quorvel
