#pragma once

#include <memory>
#include <string>

#include "host/progress_words.h"
#include "quorvel/platform.h"
#include "quorvel/widgets.h"

namespace quorvel {

struct Context;

/// How far a receive has come; a dialog opened later shows it as well.
struct ReceiveProgress {
  int maximum = 0;     ///< blocks to come, 0 until block 1 has come
  int value = 0;       ///< last block received
  std::string status;  ///< UTF-8
  std::int32_t bytes = 0;
  bool finished = false;
};

/// The receive dialog: progress, and at the end OK and "Save File". When nothing comes for a while
/// it says what can be done; a receive that has not come to its end can be cancelled.
class frm_ULFrMux : public Dialog {
 public:
  explicit frm_ULFrMux(Context& context);
  void ShowProgress(const ReceiveProgress& progress);
  /// The data was restored from a file: there is nothing to save.
  void ShowRestored();

  /// The dialog has been closed, in whatever way.
  Handler StopUL;
  /// "Save File" was pressed.
  Handler SaveFile;

 private:
  void ListenFor(bool more);

  Context& context_;
  std::unique_ptr<Timer> tmSilence;

  Label Label1{*this, "Label1"};
  Label Label3{*this, "Label3"};
  Label Label2{*this, "Label2"};
  Label Label4{*this, "Label4"};
  ProgressBar prgBar1{*this, "prgBar1"};
  Label lblPace{*this, "lblPace"};
  ProgressWords words_{context_};
  Label lblSilent{*this, "lblSilent"};
  Button cmdSaveFile{*this, "cmdSaveFile"};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
};

}  // namespace quorvel
