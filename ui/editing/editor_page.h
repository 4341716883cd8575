#pragma once

#include <string>

#include "ui/editing/editor.h"

namespace quorvel {

/// A page of an editor that is large enough to be a class of its own: it holds the page's controls,
/// fills them from the record and writes them back. The editor says when.
class EditorPage {
 public:
  EditorPage(const EditorPage&) = delete;
  EditorPage& operator=(const EditorPage&) = delete;

 protected:
  explicit EditorPage(Editor& editor) : editor_(editor) {}
  ~EditorPage() = default;

  [[nodiscard]] Context& Ctx() { return editor_.Ctx(); }
  [[nodiscard]] MuxData& Record() { return Ctx().Record(); }
  [[nodiscard]] const Identity& Id() const { return editor_.Id(); }
  [[nodiscard]] const GlobalCnst& Words() { return Ctx().texts.Constants(); }
  [[nodiscard]] std::string Text(int id) const { return editor_.Text(id); }

 private:
  Editor& editor_;
};

}  // namespace quorvel
