#include "ui/menu/text_catalogue.h"

#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

/// A text source that says "X" for every id but one, for which it fails.
class Source : public AutomationObject {
 public:
  std::string Call(std::string_view method, std::int32_t id) override {
    if (method != "getresourcestring" || id == 271) throw std::runtime_error("no such text");
    return "X";
  }
};

TEST(TextCatalogue, ASourceReplacesTextsAndItsFailureDoesNot) {
  TestHost host;
  host.platform.Classes().Register("Texts.X", [] { return std::make_shared<Source>(); });
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
  classes.Register("Texts.X", [] { return std::make_shared<Source>(); });
  TextCatalogue texts;
  texts.CreateCatalogues();
  texts.CreateTextSource(classes, "Texts.X");
  EXPECT_EQ(texts.GetText(41), "X");
  EXPECT_EQ(texts.GetText(271), "Finished");
  EXPECT_EQ(texts.Constants().cnstrOK, "OK");
  EXPECT_EQ(texts.Constants().cnstr24h, "24 HOUR");
  EXPECT_EQ(texts.Constants().cnstrFPlusS, "1+2");
  EXPECT_EQ(texts.Constants().ctDayOfWeek(3), "THU");
  EXPECT_EQ(texts.Constants().ctDayOfWeek(7), "");
  EXPECT_EQ(texts.Constants().ctDayWildcard(1), "SAT-SUN");
  EXPECT_EQ(texts.Objects().objstFWarn, "Please first select DownLoad or Restore");
}

}  // namespace
}  // namespace quorvel
