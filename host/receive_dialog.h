#pragma once

#include <memory>
#include <string>

#include "host/download.h"
#include "host/frm_ul_fr_mux.h"

namespace quorvel {

/// The receive dialog, and the commands that show it. It follows the Download, which runs without
/// it as well, and asks and tells the user what is to be asked and told.
class ReceiveDialog final : public DownloadListener {
 public:
  ReceiveDialog(Context& context, Download& download) : context_(context), download_(download) {}
  ReceiveDialog(const ReceiveDialog&) = delete;
  ReceiveDialog& operator=(const ReceiveDialog&) = delete;
  ~ReceiveDialog() = default;

  /// Command 10. Asks for the first block or the combined array, then shows the dialog to an
  /// interactive host and returns when it is closed.
  void Receive();
  /// Command 12. Asks the user for a settings file and shows the result; returns when that is
  /// closed. A file that cannot be read or decoded changes nothing.
  void RestoreImageFromFile();
  /// Takes the dialog off the screen, without raising its events.
  void Close();

  void Over() override;
  void ArrayHasCome() override { FetchTexts(); }
  void BlockHasCome(int number, int count, std::int32_t bytes) override;
  void AllHasCome(int count, std::int32_t bytes) override;
  void Flawed(ArrayFlaw flaw) override;

 private:
  void FetchTexts();
  void Open(int round, bool restored);
  void ShowProgress();

  Context& context_;
  Download& download_;
  std::shared_ptr<frm_ULFrMux> frmUL;
  ReceiveProgress progress_;
  std::string block_text_;
  std::string finished_text_;
  std::string not_used_text_, macros_missing_text_;
  std::string message_title_;
};

}  // namespace quorvel
