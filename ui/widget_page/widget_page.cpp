#include "ui/widget_page/widget_page.h"

#include <string>

#include "quorvel/widget_page.h"

namespace quorvel {

WidgetPage::WidgetPage(Platform& platform) : Dialog(platform, "frm_Widgets") {
  SetCaption("Widgets & their <b>states</b>");
  SetLayout(
      Column(Tabs(pages, Page{"Texts & buttons", texts_.Contents()},
                  Page{"Lists, sliders & pickers", choices_.Contents()},
                  Page{"Grid & controls", grids_.CameraPage()},
                  Page{"Other grids", Column(grids_.OtherPage(), Row(Stretch(), cmdAddColumn))},
                  Page{"Frames & tabs", Frames()}, Page{"Hidden at first", Column(lblHidden)},
                  Page{"Not yet renamed", Column(lblRenamed)}),
             Row(prgHalf, prgNothing), sbrTexts, Row(chkShowHidden, Stretch(), cmdOK, cmdCancel)));
  SetKeyButtons(&cmdOK, &cmdCancel);
  pages.SetPageCaption(kRenamedPage, "Renamed & moved");
  ShowHidden(false);

  prgHalf.SetMaximum(225);
  prgHalf.SetValue(112);
  prgNothing.SetMaximum(0);
  sbrTexts.SetPanel(1, "R&D <b>status</b>");
  sbrTexts.SetPanel(2, std::string("zero\0byte", 9));

  chkShowHidden.on_click = [this] { ShowHidden(chkShowHidden.Checked()); };
  cmdAddColumn.on_click = [this] { grids_.AddColumn(); };
  cmdOK.on_click = [this] { Close(); };
  cmdCancel.on_click = [this] { Close(); };
}

Layout WidgetPage::Frames() {
  txtIn.SetText("Enabled, in a disabled frame");
  lstIn.SetItems({"Off", "On"});
  lstIn.SetRows(2);
  frmDisabled.SetEnabled(false);
  frmKept.SetKeepsPlace(true);
  tabDisabled.SetEnabled(false);
  auto inner_tabs = Tabs(tabInner, Page{"First", Column(lblPage1)},
                         Page{"Second", Column(lblPage2), false}, Page{"Third", Column(cmdPage3)});
  auto disabled_tabs = Tabs(tabDisabled, Page{"In front", Column(lblDisabledPage)},
                            Page{"Behind", Column(lblOtherPage)});
  return Column(Row(Framed(frmOuter, Row(Framed(frmInner, Lines(chkInner, lblPlain)))),
                    Framed(frmDisabled, Column(txtIn, chkIn, lstIn))),
                Row(Framed(frmClosedUp, Column(txtClosedUp)), Framed(frmKept, Column(txtKept)),
                    Framed(frmPlain, Column(std::move(inner_tabs)))),
                std::move(disabled_tabs), Stretch());
}

void WidgetPage::ShowHidden(bool shown) {
  frmClosedUp.SetVisible(shown);
  frmKept.SetVisible(shown);
  pages.SetPageVisible(kHiddenPage, shown);
  tabInner.SetPageVisible(1, shown);
  texts_.ShowHidden(shown);
}

std::shared_ptr<Dialog> MakeWidgetPage(Platform& platform) {
  return std::make_shared<WidgetPage>(platform);
}

}  // namespace quorvel
