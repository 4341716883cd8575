#pragma once

#include <memory>

#include "host/frm_to_mux.h"
#include "host/upload.h"

namespace quorvel {

/// The send dialog, and the command that shows it. What its user starts, an Upload does, which runs
/// without it as well.
class SendDialog final : public UploadListener {
 public:
  SendDialog(Context& context, Upload& upload) : context_(context), upload_(upload) {}
  SendDialog(const SendDialog&) = delete;
  SendDialog& operator=(const SendDialog&) = delete;
  ~SendDialog() = default;

  /// Command 11. Encodes the listed blocks, checks that the data fits the device, and shows the
  /// dialog; returns when it is closed.
  void Send();

  /// Takes the dialog off the screen.
  void Over() override;
  void BlocksGo() override;
  void ListedBlocksGo() override;
  void BlockGoes(int number, int done, int total) override;
  void EndPacketGoes() override;
  void AllIsSent() override;
  void DoesNotMatch() override;
  [[nodiscard]] bool AcceptMacroSize() override;

 private:
  [[nodiscard]] bool DataFits();
  void RefuseData();
  void Bind(const std::shared_ptr<frm_ToMux>& dialog, const SendBasis& basis);
  void ClearBlocks();

  Context& context_;
  Upload& upload_;
  std::shared_ptr<frm_ToMux> frmDL;
};

}  // namespace quorvel
