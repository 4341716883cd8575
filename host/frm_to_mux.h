#pragma once

#include <functional>
#include <string>

#include "host/progress_words.h"
#include "quorvel/transfer.h"
#include "quorvel/widgets.h"

namespace quorvel {

struct Context;

/// The send dialog: what to send, START and STOP, and how far it has come. It changes nothing of
/// the control: the send that listens to it does.
class frm_ToMux : public Dialog {
 public:
  explicit frm_ToMux(const Context& context);

  /// START was pressed.
  std::function<void(const SendChoice&)> StartDL;
  /// STOP was pressed, or the dialog has been closed.
  Handler StopDL;
  /// "Clear Blocks" was pressed: the list of modified blocks is to be emptied.
  Handler ClearBlk;

  /// A block-by-block send has begun.
  void ShowSending();
  /// Block `number` is on its way, the `done`th of `total`.
  void ShowBlock(int number, int done, int total);
  /// Everything has been sent.
  void ShowFinished();
  /// The end packet has been sent.
  void ShowEnded();
  /// The listed blocks are on their way, or have been sent: the list can be emptied.
  void ShowClearBlocks() { cmdClearBlk.SetVisible(true); }

 private:
  enum Entry { kMacros = 0, kData = 1, kAll = 0, kModified = 1 };
  enum Panel { kStatus = 1, kBlock = 2, kResult = 3 };

  [[nodiscard]] bool AllBlocks() const { return optBlk(kAll).Selected(); }
  void ArrangeControls();
  void BindHandlers();
  void ChooseAll();
  void ChooseModified();
  void IncludeClicked(bool data);
  void Start();
  void Stop();
  void ClearBlocks();
  void EnableChoice();
  void EnableStart();
  /// Makes a button the one that Return presses where the focus is on no other.
  void Recommend(Button& button);

  const Context& context_;
  // A text source of the host may do anything while it is asked for a text: none is asked for
  // during a send.
  std::string upload_block_text_;
  std::string abort_text_;
  std::string delete_text_;
  std::string finished_text_;
  bool sending_ = false;  ///< until the end packet or STOP; START waits for it

  ControlArray<CheckBox> chkMacro{*this, "chkMacro", 2};
  ControlArray<OptionButton> optBlk{*this, "optBlk", 2};
  ListBox lstBlkSav{*this, "lstBlkSav"};
  Button cmdOK{*this, "cmdOK"};
  Button cmdStop{*this, "cmdStop"};
  Button cmdClearBlk{*this, "cmdClearBlk"};
  Button cmdCancel{*this, "cmdCancel"};
  Label lblPace{*this, "lblPace"};
  StatusBar StatusBar1{*this, "StatusBar1", 3};
  ProgressWords words_{context_};
};

}  // namespace quorvel
