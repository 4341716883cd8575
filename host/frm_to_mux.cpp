#include "host/frm_to_mux.h"

#include <array>
#include <cstdio>

#include "resources/icon.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {

std::string ThreeDigits(int number) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "%03d", number);
  return text.data();
}

}  // namespace

frm_ToMux::frm_ToMux(const Context& context)
    : Dialog(context.platform, "frm_ToMux"), context_(context) {
  KeepAliveWith(context.edges.life);
  upload_block_text_ = context.GetText(txt::kUploadBlockNumber);
  abort_text_ = context.GetText(txt::kAbort);
  delete_text_ = context.GetText(txt::kDeleteBlocksBeingSaved);
  finished_text_ = context.GetText(txt::kFinished);
  SetIcon(&Icon101());
  ArrangeControls();
  BindHandlers();
}

void frm_ToMux::ArrangeControls() {
  SetCaption(context_.GetText(txt::kUploadingDataTo) + context_.host.CaptionSuffix());
  chkMacro(kMacros).SetCaption(context_.GetText(txt::kUploadMacroSettings));
  chkMacro(kData).SetCaption(context_.GetText(txt::kUploadBlockData));
  chkMacro(kData).SetChecked(true);
  optBlk(kAll).SetCaption(context_.GetText(txt::kAllDataBlocks));
  optBlk(kModified).SetCaption(context_.GetText(txt::kModifiedBlocks));
  optBlk(kAll).Select();
  lstBlkSav.SetVisible(false);
  lstBlkSav.SetKeepsPlace(true);
  cmdStop.SetVisible(false);
  cmdStop.SetKeepsPlace(true);  // so that a double click on START hits no other button
  cmdOK.SetCaption(context_.GetText(txt::kStart));
  cmdStop.SetCaption(context_.GetText(txt::kStop));
  cmdCancel.SetCaption(context_.GetText(txt::kClose));
  cmdClearBlk.SetCaption(context_.GetText(txt::kClearBlocks));
  cmdClearBlk.SetVisible(false);
  StatusBar1.SetPanel(kStatus, Caption());
  SetLayout(Column(chkMacro, Row(Column(optBlk, Stretch()), lstBlkSav), lblPace,
                   Row(cmdClearBlk, Stretch(), cmdStop, cmdOK, cmdCancel), StatusBar1));
  Recommend(cmdOK);
}

void frm_ToMux::BindHandlers() {
  optBlk(kAll).on_click = [this] { ChooseAll(); };
  optBlk(kModified).on_click = [this] { ChooseModified(); };
  chkMacro(kMacros).on_click = [this] { IncludeClicked(false); };
  chkMacro(kData).on_click = [this] { IncludeClicked(true); };
  cmdOK.on_click = [this] { Start(); };
  cmdStop.on_click = [this] { Stop(); };
  cmdClearBlk.on_click = [this] { ClearBlocks(); };
  cmdCancel.on_click = [this] { Close(); };
  on_closed = [this] {
    if (StopDL) StopDL();
  };
}

void frm_ToMux::ChooseAll() {
  optBlk(kAll).Select();
  lstBlkSav.SetVisible(false);
}

void frm_ToMux::ChooseModified() {
  std::vector<std::string> numbers;
  const clsBlkSave& list = context_.device.env.blocks;
  for (Byte i = 0; i < list.BlkSavIdx(); ++i) {
    if (list.BlkNumSav(i) != 0) numbers.push_back(ThreeDigits(list.BlkNumSav(i)));
  }
  const bool empty = numbers.empty();
  lstBlkSav.SetItems(std::move(numbers));
  if (empty) {
    ChooseAll();
  } else {
    lstBlkSav.SetVisible(true);
  }
}

void frm_ToMux::IncludeClicked(bool data) {
  if (data && !context_.host.ComboMode) {
    chkMacro(kData).SetChecked(true);  // block by block, the data cannot be left out
  } else if (data) {
    const bool with_data = chkMacro(kData).Checked();
    optBlk(kAll).SetVisible(with_data);
    optBlk(kModified).SetVisible(with_data && context_.device.env.blocks.BlkSavIdx() != 0);
  }
  EnableStart();
}

void frm_ToMux::EnableStart() {
  const bool something = chkMacro(kMacros).Checked() || chkMacro(kData).Checked();
  cmdOK.SetEnabled(something && !sending_);  // at most one packet is on its way
  if (cmdOK.Enabled()) Recommend(cmdOK);
}

void frm_ToMux::Start() {
  const SendChoice choice{chkMacro(kMacros).Checked(), chkMacro(kData).Checked(), AllBlocks()};
  if (choice.IncludeData) {
    if (!choice.all_blocks) lstBlkSav.Select(0);
    optBlk(choice.all_blocks ? kModified : kAll).SetEnabled(false);
  }
  StatusBar1.SetPanel(kStatus, upload_block_text_);
  cmdOK.SetEnabled(false);
  if (StartDL) StartDL(choice);
}

void frm_ToMux::Stop() {
  sending_ = false;
  StatusBar1.SetPanel(kBlock, abort_text_);
  EnableChoice();
  EnableStart();
  if (StopDL) StopDL();
}

void frm_ToMux::ClearBlocks() {
  StatusBar1.SetPanel(kStatus, delete_text_);
  StatusBar1.SetPanel(kBlock, {});
  if (ClearBlk) ClearBlk();
  lstBlkSav.SetItems({});
  ChooseAll();
  cmdClearBlk.SetVisible(false);
}

void frm_ToMux::EnableChoice() {
  optBlk(kAll).SetEnabled(true);
  optBlk(kModified).SetEnabled(true);
}

void frm_ToMux::Recommend(Button& button) { SetKeyButtons(&button, &cmdCancel); }

void frm_ToMux::ShowSending() {
  sending_ = true;
  words_.Begin();
  Recommend(cmdOK);
  cmdStop.SetVisible(true);
}

void frm_ToMux::ShowBlock(int number, int done, int total) {
  lblPace.SetCaption(words_.Of(done, total));
  StatusBar1.SetPanel(kBlock, std::to_string(number));
  if (!AllBlocks()) lstBlkSav.Select(lstBlkSav.IndexOf(ThreeDigits(number)));
  if (done == total) {
    ShowFinished();
  } else {
    StatusBar1.SetPanel(kResult, {});
  }
}

void frm_ToMux::ShowFinished() {
  StatusBar1.SetPanel(kResult, finished_text_);
  EnableChoice();
  if (!sending_) Recommend(cmdCancel);
}

void frm_ToMux::ShowEnded() {
  sending_ = false;
  lblPace.SetCaption({});
  cmdClearBlk.SetVisible(true);
  cmdStop.SetVisible(false);
  Recommend(cmdCancel);
}

}  // namespace quorvel
