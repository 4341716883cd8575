#include "ui/widget_page/choices.h"

#include <string>
#include <vector>

namespace quorvel {

ChoiceKinds::ChoiceKinds(Dialog& dialog) : dialog_(dialog) {
  FillLists();
  FillSliders();
  FillPickers();
}

void ChoiceKinds::FillLists() {
  constexpr int kMany = 101;
  std::vector<std::string> seconds;
  for (int i = 0; i < kMany; ++i) seconds.push_back(std::to_string(i) + " seconds");
  const std::vector<std::string> few{"Off", "On", "R&D <b>item</b>", "On"};
  for (ChoiceWidget* const all :
       {static_cast<ChoiceWidget*>(&lstTall), static_cast<ChoiceWidget*>(&cboPlain)}) {
    all->SetItems(seconds);
    all->Select(77);
  }
  for (ChoiceWidget* const one : std::initializer_list<ChoiceWidget*>{
           &lstShort, &lstNone, &lstDisabled, &cboNone, &cboDisabled}) {
    one->SetItems(few);
    one->Select(2);
  }
  lstNone.Select(few.size());  // none of the list
  cboNone.Select(-2);
  lstShort.SetRows(3);
  lstDisabled.SetEnabled(false);
  cboDisabled.SetEnabled(false);
}

void ChoiceKinds::FillSliders() {
  sldPlain.on_change = [this] { lblValue.SetCaption(std::to_string(sldPlain.Value())); };
  sldPlain.SetRange(-50, 150);
  sldPlain.SetSteps(1, 10);
  sldPlain.SetValue(100);
  sldPlain.on_change();
  sldOutside.SetRange(0, 20);
  sldOutside.SetValue(200);
  sldFixed.SetRange(7, 7);
  sldFixed.SetValue(7);
  sldDisabled.SetValue(60);
  sldDisabled.SetEnabled(false);
}

void ChoiceKinds::FillPickers() {
  constexpr ClockFormat kFormats[] = {ClockFormat::kHoursMinutes, ClockFormat::kHoursMinutesSeconds,
                                      ClockFormat::kTwelveHours};
  for (int i = 0; i < 3; ++i) {
    dtpTime(i).SetFormat(kFormats[i]);
    dtpTime(i).SetTime({13, 5, 9});
  }
  dtpTime(4).SetTime({25, 61, 0});
  dtpTime(5).SetTime({7, 45, 0});
  dtpTime(5).SetEnabled(false);
  dtpTime.SetSpokenNames("Time");
  dtpDate(0).SetDate({2024, 2, 29});
  dtpDate(2).SetDate({2023, 2, 29});
  dtpDate(3).SetDate({1999, 12, 31});
  dtpDate(3).SetEnabled(false);
  dtpDate.SetSpokenNames("Date");
}

Layout ChoiceKinds::Contents() {
  return Column(
      Row(Labelled(lblTall, lstTall), Labelled(lblShort, lstShort), Labelled(lblNoneOf, lstNone),
          Labelled(lblEmpty, lstEmpty), Labelled(lblListDisabled, lstDisabled)),
      Row(lblCombo, cboPlain, lblComboNone, cboNone, lblComboEmpty, cboEmpty, lblComboDisabled,
          cboDisabled),
      Row(lblSlider, sldPlain, lblValue, lblFixed, sldFixed),
      Row(lblOutside, sldOutside, lblSliderDisabled, sldDisabled), Row(lblTime, dtpTime),
      Row(lblDate, dtpDate));
}

}  // namespace quorvel
