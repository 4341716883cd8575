#include "ui/editing/editor.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "resources/icon.h"
#include "resources/text_table.h"
#include "ui/context.h"
#include "ui/editing/editor_steps.h"
#include "ui/editing/line_grid.h"

namespace quorvel {

namespace {

/// A change that no rule of the record has listed is listed here, so that none stays behind: what
/// is accepted is sent.
void ListChangedBlocks(const BlockImage& before, const BlockImage& after, clsBlkSave& list) {
  for (int number = 1; after.Counts(number); ++number) {
    const auto was = before.Block(number);
    const auto is = after.Block(number);
    if (!std::equal(was.begin(), was.end(), is.begin())) list.AddBlk(static_cast<Byte>(number));
  }
}

}  // namespace

Editor::Editor(Context& context, std::string name, int caption,
               std::initializer_list<CommitFlag> flags)
    : Dialog(context.platform, std::move(name)),
      EditorPart(*this),
      context_(context),
      flags_(flags),
      generation_(context.device.ImageGeneration()),
      id_(context.device.env.identity),
      fields_(context) {
  for (const CommitFlag flag : flags_) context_.device.env.commit.Set(flag, false);
  KeepAliveWith(context.edges.life);
  SetIcon(&Icon101());
  context_.texts.CreateCatalogues();
  SetCaption(Text(caption));
  SetPasteRefusals(Text(kTextNotAChoice), Text(kTextDoesNotFit));
  SetEditsCellWords(Text(kTextEditsCells));
  SetDisabledWords(Text(kTextNotOnThisModel));
  const EditorWords& words = context_.texts.OfEditors();
  SetContextWords({words.undo, words.redo, words.put_back, words.put_back_to_device});
  choose_a_value_ = Text(kTextChooseAValue);
}

std::vector<ShownSetting> Editor::ShownSettings() const {
  return fields_.Tell(context_.device.Record());
}

bool Editor::GoTo(std::string_view control, int row, int column) {
  Widget* const widget = FindWidget(control);
  if (widget == nullptr) return false;
  widget->BringToFront();
  if (!widget->Showing()) return false;
  auto* const cells = dynamic_cast<Grid*>(widget);
  const bool has_cell = cells != nullptr && row >= cells->HeaderRows() && row < cells->Rows() &&
                        column >= 0 && column < cells->Columns();
  if (row != Grid::kNone && !has_cell) return false;
  if (has_cell && cells->Press(row, column) != Answer::kDone) return false;
  MoveFocus(*widget);
  return true;
}

bool Editor::BelongsToImage() const { return generation_ == context_.device.ImageGeneration(); }

void Editor::Open(Button& ok, Button& cancel, TabStrip* tabs) {
  ok.SetCaption(Words().cnstrOK);
  cancel.SetCaption(Words().cnstrCancel);
  ok.on_click = [this] { Ok(); };
  cancel.on_click = [this] { Close(); };
  SetKeyButtons(&ok, &cancel);
  if (BelongsToImage()) fields_.Fill(Record());
  for (const Handler& handler : after_fill_) handler();
  for (LineGrid* const grid : grids_) grid->GoToStart();
  for (CountedBox& it : counted_boxes_) it.opened = it.box->Checked();
  KeepSteps(std::make_unique<EditorSteps>(*this));
  if (tabs == nullptr) return;
  if (tabs->SpokenName() == tabs->Name()) tabs->SetSpokenName(Caption());
  tabs->on_change = [this] {
    for (LineGrid* const grid : grids_) {
      if (grid->Showing()) grid->GoToStart();
    }
  };
}

void Editor::AddDoubt(Widget& control, Doubt doubt) {
  if (store_like_this_.empty()) store_like_this_ = Text(kTextStoreLikeThis);
  doubts_.push_back({control, std::move(doubt)});
}

bool Editor::CellsAreFilled() {
  for (LineGrid* const grid : grids_) {
    const std::string cell = grid->GoToWaitingCell();
    if (cell.empty()) continue;
    context_.platform.Ask({cell + '\r' + choose_a_value_, context_.texts.Objects().objstWarn,
                           Message::Buttons::kOk, Message::Kind::kWarning});
    if (Shown()) MoveFocus(grid->Cells());
    return false;
  }
  return true;
}

bool Editor::DoubtsAreSettled() {
  std::string lines;
  Widget* first = nullptr;
  for (const DoubtOf& it : doubts_) {
    const std::string doubt = it.doubt();
    if (doubt.empty()) continue;
    lines += it.control.SpokenName() + " " + it.control.ValueText() + '\r' + doubt + '\r';
    if (first == nullptr) first = &it.control;
  }
  if (first == nullptr) return true;
  const Message question{lines + store_like_this_, context_.texts.Objects().objstWarn,
                         Message::Buttons::kOkCancel, Message::Kind::kQuestion};
  const bool goes_on = context_.platform.Ask(question);
  if (!goes_on && Shown()) MoveFocus(*first);
  return goes_on;
}

bool Editor::MayClose() {
  if (!IsChanged() || !BelongsToImage()) return true;
  Message question{context_.texts.OfEditors().close_changed, context_.texts.Objects().objstWarn,
                   Message::Buttons::kOkCancel, Message::Kind::kQuestion};
  question.ok_without_user = true;
  return context_.platform.Ask(question);
}

void Editor::Ok() {
  if (BelongsToImage() && (!CellsAreFilled() || !DoubtsAreSettled())) return;
  // The question, or a text source that is asked for a text, may close the editor or end the
  // control.
  if (!Shown() || context_.edges.terminated) return;
  if (!BelongsToImage()) {
    const Message refusal{Text(kTextEditorOutdated), Text(txt::kErrorMessage),
                          Message::Buttons::kOk, Message::Kind::kError};
    if (!context_.edges.terminated) context_.platform.Ask(refusal);
    return;
  }
  if (!MayWrite()) return;
  Write();
  Close();
}

/// All of it or nothing: a failure half way puts back what was there. What is written is one step
/// of the control's history.
void Editor::Write() {
  RecordEnvironment& env = context_.device.env;
  context_.device.AsStep({Caption()}, [&] {
    const BlockImage before = context_.device.EncodedImage();
    {
      std::deque<CommitScope> raised;
      for (const CommitFlag flag : flags_) raised.emplace_back(env.commit, flag);
      fields_.Write(Record(), env.commit);
      WriteRest(Record());
    }
    ListChangedBlocks(before, context_.device.EncodedImage(), env.blocks);
  });
}

}  // namespace quorvel
