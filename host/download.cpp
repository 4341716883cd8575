#include "host/download.h"

#include <string>

namespace quorvel {

namespace {
constexpr int kTextDownloadingBlock = 269;
constexpr int kTextFinished = 271;
}  // namespace

void Download::Receive() {
  const int round = ++round_;
  context_.LoadedFromFile = false;
  context_.InitGlobals();
  context_.BeginImage();
  StopReceive = false;
  progress_ = {};
  // A host may answer from inside its event handler, before there is a dialog. The dialog then
  // opens on what has been reached.
  if (context_.ComboMode) {
    host_->RequestComboBlocks();
  } else {
    Request(1);
  }
  if (context_.HostCommId == 0 && round == round_) OpenDialog();
}

void Download::Request(int number) {
  awaited_ = number;
  host_->RequestBlk(static_cast<Byte>(number));
}

void Download::OpenDialog() {
  CloseDialog();
  const auto dialog = std::make_shared<frm_ULFrMux>(context_);
  dialog->StopUL = [this] { StopReceive = true; };
  dialog->SaveFile = [this] { SaveReceivedData(); };
  frmUL = dialog;
  ShowProgress();
  // The host's texts are host code, too: they may have destroyed the control.
  if (!context_.terminated) dialog->ShowModal();
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
  if (number != awaited_) return;  // late or repeated: it belongs to no request
  awaited_ = kNothing;
  const auto payload = reply.subspan(1);
  context_.ImageByteCount += static_cast<std::int32_t>(payload.size());
  context_.BlkImage.Append(payload);
  const int count = context_.BlkImage.BlkCount();
  if (number == 1) {
    context_.env.blocks.SetMaxBlk(static_cast<Byte>(count));
    progress_.maximum = count;
  }
  progress_.bytes = context_.ImageByteCount;
  progress_.status = context_.GetText(kTextDownloadingBlock) + std::to_string(number);
  if (number <= count) progress_.value = number;
  ShowProgress();

  if (number >= count && context_.ImageByteCount >= count * kBlockSize) {
    Finish();
  } else if (number < count && !StopReceive) {
    Request(number + 1);
  }
}

/// The dialog says "Finished" only of an image that could be decoded.
void Download::Finish() {
  context_.Adopt(context_.BlkImage);
  progress_.status = context_.GetText(kTextFinished);
  progress_.finished = true;
  ShowProgress();
  host_->UploadSucceeded();
}

void Download::TakeWholeImage(std::span<const Byte> data) {
  if (data.empty()) throw ImageError("an image without bytes");
  const auto bytes = data.first(data.size() - 1);
  context_.Adopt(BlockImage({bytes.begin(), bytes.end()}));
  context_.ImageByteCount = static_cast<std::int32_t>(bytes.size());
  context_.env.blocks.SetMaxBlk(context_.BlkImage.BlkCount());
  host_->ULSucceededWithStr(context_.Record().MuxModelName(), context_.env.identity.ModelCode,
                            context_.env.identity.MaxCam);
}

void Download::SaveReceivedData() {
  FileRequest request;
  request.purpose = FileRequest::Purpose::kSave;
  request.default_name = "*.bin";
  request.filter = "*.bin";
  request.default_extension = "bin";
  request.ask_before_overwriting = true;
  // What is on screen is what is saved, also when another image begins to arrive meanwhile.
  const BlockImage received = context_.BlkImage;
  const auto path = context_.platform.AskFile(request);
  if (path) context_.platform.ReplaceFile(*path, received.Bytes());
}

}  // namespace quorvel
