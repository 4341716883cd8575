#include "ui/widget_page/texts.h"

#include <string>

namespace quorvel {

TextKinds::TextKinds(Dialog& dialog) : dialog_(dialog) {
  lblDisabled.SetEnabled(false);
  cmdDisabled.SetEnabled(false);
  cmdHidden.SetKeepsPlace(true);
  FillTicks();
  FillBoxes();
}

void TextKinds::FillTicks() {
  chkState.SetCaptions({"Off", "On", "Off, disabled", "On, disabled", "Hidden at first"});
  for (const int on : {1, 3}) chkState(on).SetChecked(true);
  for (const int disabled : {2, 3}) chkState(disabled).SetEnabled(false);

  optMode.SetCaptions({"Field & frame", "Disabled", "Hidden at first", "Selected"});
  optMode(1).SetEnabled(false);
  optMode.Select(3);
  optNone.SetCaptions({"First", "Second", "Third"});
  optNone.Select(7);
  optDisabled.SetCaptions({"Selected and disabled", "Enabled"});
  optDisabled.Select(0);
  optDisabled(0).SetEnabled(false);
  optHidden.SetCaptions({"Selected and hidden", "Shown"});
  optHidden.Select(0);
}

void TextKinds::FillBoxes() {
  constexpr int kTitleLength = 12;
  for (TextBox* const box : {&txtTitle, &txtBeyond, &txtZero, &txtSelected, &txtDisabled}) {
    box->SetMaxLength(kTitleLength);
  }
  txtTitle.SetText(
      "Stra\xC3\x9F"
      "e 1");
  txtBeyond.SetText("Longer than twelve characters");
  txtZero.SetText(std::string("A\0B", 3));
  txtSelected.SetText("Lobby");
  txtSelected.SetSelectOnFocus(TextBox::kWhole, true);
  txtDisabled.SetText("Gate");
  txtDisabled.SetEnabled(false);
  port_.Show(70000);                               // no port, and stays until the user types
  constexpr Byte kAddress[] = {240, 168, 0, 255};  // no host's address
  for (int i = 0; i < txtAddress.Count(); ++i) address_.Show(i, kAddress[i]);
  txtAddress.SetSpokenNames("Address");
}

Layout TextKinds::Contents() {
  return Column(
      Row(lblMarks, lblDisabled, cmdMarks, cmdDisabled, cmdHidden, cmdAfter),
      Row(Framed(frmTicks, Lines(chkState)), Framed(frmOptions, Lines(optMode)),
          Framed(frmNone, Lines(optNone)), Framed(frmOut, Lines(optDisabled, optHidden))),
      Row(Column(LabelledRow(lblTitle, txtTitle), LabelledRow(lblBeyond, txtBeyond),
                 LabelledRow(lblZero, txtZero), LabelledRow(lblSelected, txtSelected)),
          Column(LabelledRow(lblAny, txtAny), LabelledRow(lblNoText, txtDisabled),
                 LabelledRow(lblPort, txtPort), Row(lblAddress, Dotted(txtAddress, lblDot)))),
      Stretch());
}

void TextKinds::ShowHidden(bool shown) {
  cmdHidden.SetVisible(shown);
  chkState(4).SetVisible(shown);
  optMode(2).SetVisible(shown);
  optHidden(0).SetVisible(shown);
}

}  // namespace quorvel
