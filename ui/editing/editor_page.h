#pragma once

#include <string>

#include "quorvel/widgets.h"
#include "ui/context.h"

namespace quorvel {

/// A page of an editor that is large enough to be a class of its own: it holds the page's controls,
/// fills them from the record and writes them back. The editor says when.
class EditorPage {
 public:
  EditorPage(const EditorPage&) = delete;
  EditorPage& operator=(const EditorPage&) = delete;

 protected:
  explicit EditorPage(Context& context) : context_(context) {}
  ~EditorPage() = default;

  [[nodiscard]] Context& Ctx() { return context_; }
  [[nodiscard]] MuxData& Record() { return context_.Record(); }
  [[nodiscard]] const Identity& Id() const { return context_.env.identity; }
  [[nodiscard]] const GlobalCnst& Words() { return context_.texts.Constants(); }
  [[nodiscard]] std::string Text(int id) const { return context_.GetText(id); }

 private:
  Context& context_;
};

}  // namespace quorvel
