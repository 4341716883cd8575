#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor.h"

namespace quorvel {

/// Video Archive Setup: what a recorder archives, through which port, and whether it writes CDs.
class frm_VArchive : public Editor {
 public:
  explicit frm_VArchive(Context& context);

 private:
  void BindPort(FieldGroup& settings);

  Frame Frame1{*this, "Frame1", Text(txt::kArchiveMode)};
  ControlArray<OptionButton> optArMode{*this, "optArMode", 4};
  Frame Frame2{*this, "Frame2", Text(txt::kArchiveSetting)};
  ControlArray<OptionButton> optArSetting{*this, "optArSetting", 3};
  Frame Frame3{*this, "Frame3", Text(txt::kBackgroundArchive)};
  ControlArray<OptionButton> opBgArchive{*this, "opBgArchive", 2};
  Frame Frame4{*this, "Frame4", Text(txt::kLumacastSetup)};
  Label lbCD{*this, "lbCD", Text(txt::kLumacastCdWrite)};
  ControlArray<OptionButton> optCD{*this, "optCD", 2};
  Frame frmArchivePort{*this, "frmArchivePort", Text(txt::kArchivePortSelectSetup)};
  Label lbArchPort{*this, "lbArchPort", Text(txt::kArchivePortSelect)};
  ControlArray<OptionButton> optArchPort{*this, "optArchPort", 2};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
};

}  // namespace quorvel
