#include "ui/texts/text_catalogue.h"

#include <gtest/gtest.h>

#include "tests/host/test_host.h"
#include "tests/host/text_source.h"

namespace quorvel {
namespace {

/// Says "X" for every id but one, for which it fails.
std::string MostlyX(std::int32_t id) {
  if (id == 271) throw std::runtime_error("no such text");
  return "X";
}

TEST(TextCatalogue, ASourceReplacesTextsAndItsFailureDoesNot) {
  TestHost host;
  RegisterTexts(host.platform.Classes(), "Texts.X", MostlyX);
  host.platform.Classes().Register("Texts.None", [] { return nullptr; });
  host.control->CustomWithString(191, 0, 0, "Texts.X");
  host.control->CustomWithString(191, 0, 0, "Texts.Unknown");
  host.control->CustomWithString(191, 0, 0, "Texts.None");
  std::string byte_count, status, ok;
  host.platform.at_modal = [&](Dialog& dialog) {
    byte_count = dialog.Find<Label>("Label1").Caption();
    status = dialog.Find<Label>("Label4").Caption();
    ok = dialog.Find<Button>("cmdOK").Caption();
    return dialog.Find<Button>("cmdOK").Click() == Answer::kDone;
  };
  host.control->Custom(10, 0, 0);
  EXPECT_EQ(byte_count, "X");
  EXPECT_EQ(status, "Finished");
  EXPECT_EQ(ok, "X");
}

TEST(TextCatalogue, ReadyMadeTextsKeepTheirFirstValues) {
  ClassFactory classes;
  RegisterTexts(classes, "Texts.X", MostlyX);
  TextCatalogue texts;
  texts.CreateCatalogues();
  texts.CreateTextSource(classes, "Texts.X");
  EXPECT_EQ(texts.GetText(41), "X");
  EXPECT_EQ(texts.GetText(271), "Finished");
  EXPECT_EQ(texts.Constants().cnstrOK, "OK");
}

TEST(TextCatalogue, HoldsTheReadyMadeTexts) {
  TextCatalogue texts;
  const GlobalCnst& it = texts.Constants();
  const ObjStr& objects = texts.Objects();
  std::string all;
  const auto add = [&all](const auto&... text) { ((all += text + "; "), ...); };
  add(it.cnstrAND, it.cnstrOR, it.cnstrEvent, it.cnstrTL, it.cnstrEvTL, it.cnstrTop, it.cnstrBottom,
      it.cnstr2X, it.cnstr4X, it.cnstrI, it.cnstrIntrus, it.cnstrActivity, it.cnstrInAct,
      it.cnstrActive, it.cnstrAC, it.cnstrDC, it.cnstr12H, it.cnstr24h, it.cnstrMM, it.cnstrDD,
      it.cnstrYY, it.cnstrMono, it.cnstrColor, it.cnstrField, it.cnstrFrame, it.cnstrOK,
      it.cnstrCancel, it.cnstrExcl, it.cnstrInter, it.cnstrNoChg, it.cnstrON, it.cnstrOFF,
      it.cnstrSTD, it.cnstrLow, it.cnstrMed, it.cnstrHigh, it.cnstrClose, it.cnstrOpen, it.cnstrNo,
      it.cnstrYes, it.cnstrDisable, it.cnstrEnable, it.cnstrNone, it.cnstrFirst, it.cnstrSecond,
      it.cnstrFPlusS, it.cnstrExt1, it.cnstrExt2, it.cnstrExt3, it.cnstrExt4, objects.objstMon,
      objects.objstInvalidPass, objects.objstWarn, objects.objstExit, objects.objstCam,
      objects.objstAlarm, objects.objstFWarn, objects.objstMesg);
  EXPECT_EQ(all,
            "AND; OR; Event; TL; Event+TL; Top; Bottom; 2x; 4x; I; INTRUSION; ACTIVITY; INACTIVE; "
            "ACTIVE; AC; DC; 12 HOUR; 24 HOUR; MM/DD/YY; DD/MM/YY; YY/MM/DD; Mono; Colour; Field; "
            "Frame; OK; CANCEL; EXCLUSIVE; INTERLEAVED; NO CHANGE; ON; OFF; Standard; Low; Medium; "
            "High; N/CLOSED; N/OPEN; NO; YES; DISABLE; ENABLE; NONE; 1; 2; 1+2; EXT1; EXT2; EXT3; "
            "EXT4; Monitor; Incorrect Password!; Warning!; Exit; Camera; Alarm; Please first "
            "select DownLoad or Restore; Message; ");
  all.clear();
  for (int i = -1; i <= 7; ++i) all += it.ctDayOfWeek(i) + "; " + it.ctDayWildcard(i) + "; ";
  EXPECT_EQ(all, "; ; MON; MON-FRI; TUE; SAT-SUN; WED; MON-SUN; THU; ; FRI; ; SAT; ; SUN; ; ; ; ");
}

}  // namespace
}  // namespace quorvel
