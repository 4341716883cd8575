#include "ui/editing/editor_part.h"

#include <utility>

#include "ui/context.h"
#include "ui/editing/device_text.h"
#include "ui/editing/editor.h"

namespace quorvel {

EditorPart::operator Dialog&() const { return editor_; }

Context& EditorPart::Ctx() const { return editor_.context_; }

const Identity& EditorPart::Id() const { return editor_.id_; }

MuxData& EditorPart::Record() const { return Ctx().device.Record(); }

std::string EditorPart::Text(int id) const { return Ctx().GetText(id); }

const GlobalCnst& EditorPart::Words() const { return Ctx().texts.Constants(); }

const ObjStr& EditorPart::Objects() const { return Ctx().texts.Objects(); }

std::string EditorPart::TitleOf(int camera) const {
  const Cameras& it = Record().AllCameras().at(static_cast<std::size_t>(camera));
  return Ctx().platform.ToUtf8(Editable(it.title()));
}

FieldGroup& EditorPart::Each(int lines) const { return editor_.fields_.Group(exists_ ? lines : 0); }

void EditorPart::AfterFill(Handler handler) const {
  editor_.after_fill_.push_back(std::move(handler));
}

void EditorPart::Counts(CheckBox& box) const { editor_.Counts(box); }

}  // namespace quorvel
