#pragma once

#include <memory>
#include <span>

#include "host/frm_ul_fr_mux.h"
#include "host/host_events.h"
#include "ui/context.h"

namespace quorvel {

/// Brings the device's configuration into the component: asks the host for it, assembles the image,
/// decodes it and tells the host that it has arrived.
class Download {
 public:
  Download(Context& context, HostEvents& host) : context_(context), host_(host) {}
  Download(const Download&) = delete;
  Download& operator=(const Download&) = delete;
  ~Download() = default;

  /// Command 10. Asks for the first block or the combined array, then shows the receive dialog to
  /// an interactive host and returns when it is closed.
  void Receive();
  /// One reply of the block-by-block exchange: [0] block number, then the block's bytes.
  void TakeBlock(std::span<const Byte> reply);
  /// The whole image in one call; the last byte is not part of it.
  void TakeWholeImage(std::span<const Byte> data);

  /// Takes the dialog off the screen, without telling anybody.
  void CloseDialog();

 private:
  void Request(int number);
  void OpenDialog();
  void ShowProgress();
  void Finish();
  void SaveReceivedData();

  Context& context_;
  HostEvents& host_;
  std::shared_ptr<frm_ULFrMux> frmUL;
  ReceiveProgress progress_;
  static constexpr int kNothing = 0;
  int awaited_ = kNothing;   ///< block that was asked for and has not come
  int round_ = 0;            ///< tells this receive from one that a host starts inside its event
  bool StopReceive = false;  ///< the user has closed the dialog; no further block is asked for
};

}  // namespace quorvel
