#include "host/download.h"

#include <string>

namespace quorvel {

namespace {
constexpr int kTextDownloadingBlock = 269;
constexpr int kTextFinished = 271;
}  // namespace

void Download::Receive() {
  context_.LoadedFromFile = false;
  context_.InitGlobals();
  context_.BeginImage();
  StopReceive = false;
  BlkCount = 0;
  progress_ = {};
  // A host may answer from inside its event handler, before there is a dialog. The dialog then
  // opens on what has been reached.
  if (context_.ComboMode) {
    host_.RequestComboBlocks();
  } else {
    host_.RequestBlk(1);
  }
  if (context_.HostCommId == 0 && !context_.terminated) OpenDialog();
}

void Download::OpenDialog() {
  CloseDialog();
  const auto dialog = std::make_shared<frm_ULFrMux>(context_);
  frmUL = dialog;
  dialog->StopUL = [this] { StopReceive = true; };
  dialog->SaveFile = [this] { SaveReceivedData(); };
  ShowProgress();
  dialog->ShowModal();
}

void Download::CloseDialog() {
  const auto dialog = std::move(frmUL);
  if (dialog == nullptr) return;
  dialog->StopUL = nullptr;
  dialog->Close();
}

void Download::ShowProgress() {
  if (frmUL != nullptr) frmUL->ShowProgress(progress_);
}

void Download::TakeBlock(std::span<const Byte> reply) {
  if (reply.empty()) throw ImageError("a block reply without a block number");
  const int number = reply[0];
  const auto payload = reply.subspan(1);
  context_.ImageByteCount += static_cast<std::int32_t>(payload.size());
  context_.BlkImage.Append(payload);
  progress_.bytes = context_.ImageByteCount;
  if (number == 1) {
    BlkCount = context_.BlkImage.BlkCount();
    context_.env.blocks.SetMaxBlk(BlkCount);
    progress_.maximum = BlkCount;
  }
  progress_.status = context_.GetText(kTextDownloadingBlock) + std::to_string(number);
  if (number <= BlkCount) progress_.value = number;
  ShowProgress();

  const bool complete = context_.ImageByteCount >= BlkCount * kBlockSize;
  if (number >= BlkCount && complete) {
    Finish();
  } else if (number < BlkCount && !StopReceive) {
    host_.RequestBlk(static_cast<Byte>(number + 1));
  }
}

void Download::Finish() {
  context_.DecodeIntoFreshRecord();
  progress_.status = context_.GetText(kTextFinished);
  progress_.finished = true;
  ShowProgress();
  host_.UploadSucceeded();
}

void Download::TakeWholeImage(std::span<const Byte> data) {
  if (data.empty()) throw ImageError("an image without bytes");
  const auto image = data.first(data.size() - 1);
  context_.BeginImage();
  context_.BlkImage.Append(image);
  context_.ImageByteCount = static_cast<std::int32_t>(image.size());
  context_.env.blocks.SetMaxBlk(context_.BlkImage.BlkCount());
  context_.DecodeIntoFreshRecord();
  host_.ULSucceededWithStr(context_.Record().MuxModelName(), context_.env.identity.ModelCode,
                           context_.env.identity.MaxCam);
}

void Download::SaveReceivedData() {
  FileRequest request;
  request.purpose = FileRequest::Purpose::kSave;
  request.default_name = "*.bin";
  request.filter = "*.bin";
  request.default_extension = "bin";
  request.ask_before_overwriting = true;
  const auto path = context_.platform.AskFile(request);
  if (path) context_.platform.ReplaceFile(*path, context_.BlkImage.Bytes());
}

}  // namespace quorvel
