#include "ui/editing/editor.h"

#include "resources/icon.h"
#include "resources/text_table.h"

namespace quorvel {

namespace {
constexpr int kTextDataDoesNotMatch = 267;
constexpr int kTextErrorMessage = 270;
}  // namespace

Editor::Editor(Context& context, std::string name, CommitFlag flag)
    : Dialog(context.platform, std::move(name)),
      context_(context),
      flag_(flag),
      generation_(context.ImageGeneration()),
      id_(context.env.identity) {
  context_.env.commit.Set(flag_, false);
  KeepAliveWith(context.life);
  SetIcon(&Icon101());
  context_.texts.CreateCatalogues();
  SetPasteRefusals(Text(kTextNotAChoice), Text(kTextDoesNotFit));
}

void Editor::BindButtons(Button& ok, Button& cancel) {
  ok.SetCaption(context_.texts.Constants().cnstrOK);
  cancel.SetCaption(context_.texts.Constants().cnstrCancel);
  ok.on_click = [this] { Ok(); };
  cancel.on_click = [this] { Close(); };
  SetKeyButtons(&ok, &cancel);
}

void Editor::Ok() {
  if (!BelongsToImage()) {
    const Message refusal{Text(kTextDataDoesNotMatch), Text(kTextErrorMessage),
                          Message::Buttons::kOk};
    if (!context_.terminated) context_.platform.Ask(refusal);  // a text source may have ended it
    return;
  }
  {
    const CommitScope commit(context_.env.commit, flag_);
    WriteBack(context_.Record());
  }
  Close();
}

}  // namespace quorvel
