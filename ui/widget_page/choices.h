#pragma once

#include "quorvel/widgets.h"

namespace quorvel {

/// Lists, drop-down lists, sliders and pickers in their states.
class ChoiceKinds {
 public:
  explicit ChoiceKinds(Dialog& dialog);
  [[nodiscard]] Layout Contents();

 private:
  void FillLists();
  void FillSliders();
  void FillPickers();

  Dialog& dialog_;
  Label lblTall{dialog_, "lblTall", "Tall"};
  ListBox lstTall{dialog_, "lstTall"};
  Label lblShort{dialog_, "lblShort", "3 lines"};
  ListBox lstShort{dialog_, "lstShort"};
  Label lblNoneOf{dialog_, "lblNoneOf", "None chosen"};
  ListBox lstNone{dialog_, "lstNone"};
  Label lblEmpty{dialog_, "lblEmpty", "Empty"};
  ListBox lstEmpty{dialog_, "lstEmpty"};
  Label lblListDisabled{dialog_, "lblListDisabled", "Disabled"};
  ListBox lstDisabled{dialog_, "lstDisabled"};

  Label lblCombo{dialog_, "lblCombo", "Drop-down"};
  ComboBox cboPlain{dialog_, "cboPlain"};
  Label lblComboNone{dialog_, "lblComboNone", "None chosen"};
  ComboBox cboNone{dialog_, "cboNone"};
  Label lblComboEmpty{dialog_, "lblComboEmpty", "Empty"};
  ComboBox cboEmpty{dialog_, "cboEmpty"};
  Label lblComboDisabled{dialog_, "lblComboDisabled", "Disabled"};
  ComboBox cboDisabled{dialog_, "cboDisabled"};

  Label lblSlider{dialog_, "lblSlider", "Slider"};
  Slider sldPlain{dialog_, "sldPlain"};
  Label lblValue{dialog_, "lblValue"};
  Label lblOutside{dialog_, "lblOutside", "200 of 0 to 20"};
  Slider sldOutside{dialog_, "sldOutside"};
  Label lblFixed{dialog_, "lblFixed", "One value only"};
  Slider sldFixed{dialog_, "sldFixed"};
  Label lblSliderDisabled{dialog_, "lblSliderDisabled", "Disabled"};
  Slider sldDisabled{dialog_, "sldDisabled"};

  Label lblTime{dialog_, "lblTime", "Times"};
  /// In the three formats, blank, one that no clock shows, and disabled.
  ControlArray<TimePicker> dtpTime{dialog_, "dtpTime", 6};
  Label lblDate{dialog_, "lblDate", "Dates"};
  /// A day, blank, one that no calendar has, and disabled.
  ControlArray<DatePicker> dtpDate{dialog_, "dtpDate", 4};
};

}  // namespace quorvel
