#pragma once

#include "quorvel/widgets.h"
#include "ui/widget_page/choices.h"
#include "ui/widget_page/grids.h"
#include "ui/widget_page/texts.h"

namespace quorvel {

/// See MakeWidgetPage. Its grids are edited by what edits those of the editors, so a renderer that
/// draws it well draws them well.
class WidgetPage : public Dialog {
 public:
  explicit WidgetPage(Platform& platform);

  // What acts on others; everything is found by its name.
  TabStrip pages{*this, "SSTab1"};
  CheckBox chkShowHidden{*this, "chkShowHidden", "Show what is hidden"};
  Button cmdAddColumn{*this, "cmdAddColumn", "Add a column"};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

 private:
  enum { kHiddenPage = 5, kRenamedPage };
  [[nodiscard]] Layout Frames();
  void ShowHidden(bool shown);

  TextKinds texts_{*this};
  ChoiceKinds choices_{*this};
  GridKinds grids_{*this};

  Frame frmOuter{*this, "frmOuter", "Frame around a frame"};
  Frame frmInner{*this, "frmInner", "R&D <b>frame</b>"};
  CheckBox chkInner{*this, "chkInner", "In both"};
  Frame frmPlain{*this, "frmPlain"};
  Label lblPlain{*this, "lblPlain", "In a frame without a caption"};
  Frame frmClosedUp{*this, "frmClosedUp", "Hidden, the space closed up"};
  TextBox txtClosedUp{*this, "txtClosedUp"};
  Frame frmKept{*this, "frmKept", "Hidden, the space kept"};
  TextBox txtKept{*this, "txtKept"};
  Frame frmDisabled{*this, "frmDisabled", "Disabled frame"};
  TextBox txtIn{*this, "txtIn"};
  CheckBox chkIn{*this, "chkIn", "Enabled, in a disabled frame"};
  ListBox lstIn{*this, "lstIn"};
  TabStrip tabInner{*this, "tabInner"};
  Label lblPage1{*this, "lblPage1", "The second page is hidden"};
  Label lblPage2{*this, "lblPage2", "Hidden"};
  Button cmdPage3{*this, "cmdPage3", "On the third page"};
  TabStrip tabDisabled{*this, "tabDisabled"};
  Label lblDisabledPage{*this, "lblDisabledPage", "Pages out of reach"};
  Label lblOtherPage{*this, "lblOtherPage"};
  Label lblHidden{*this, "lblHidden", "On a page that is hidden at first"};
  Label lblRenamed{*this, "lblRenamed", "On a page that was renamed"};

  ProgressBar prgHalf{*this, "prgHalf"};
  ProgressBar prgNothing{*this, "prgNothing"};
  StatusBar sbrTexts{*this, "sbrTexts", 3};
};

}  // namespace quorvel
