#include <gtest/gtest.h>

#include <set>

#include "tests/host/test_host.h"
#include "tests/ui/editor_items.h"

namespace quorvel {
namespace {

/// Of every editor that a model has: a factory image holds what it can show.
TEST(Editors, OpenAndOkMarksNothingOnAnyModel) {
  TestHost host;
  std::set<std::string> opened;
  constexpr Byte kCameras[] = {16, 9, 4};
  for (const int resource : {104, 301, 401}) {
    host.device = LoadDefaultImage(resource);
    const int first = resource == 104 ? 0 : resource == 301 ? 2 : 6;
    const int last = resource == 104 ? 1 : resource == 301 ? 5 : 20;
    for (int code = first; code <= last; ++code) {
      for (const char variant : {'4', '0', '1', '2', 'A', 'C'}) {
        host.Identify(kCameras[code % 3], static_cast<Byte>(code), static_cast<Byte>(variant));
        host.Download();
        host.OpenMenu();
        for (const std::string& item : EditorItems(host.platform.Menu().Root())) {
          SCOPED_TRACE(item + " " + std::to_string(code) + " " + variant);
          const auto editor = OpenEditor(host, item);
          ASSERT_NE(editor, nullptr);
          ASSERT_NE(editor->DefaultButton(), nullptr);
          EXPECT_EQ(editor->DefaultButton()->Click(), Answer::kDone);
          EXPECT_FALSE(editor->Shown());
          EXPECT_EQ(host.Modified(), std::vector<int>{});
          opened.insert(editor->Name());
        }
      }
    }
  }
  EXPECT_TRUE(opened.contains("frm_CameraSetup") && opened.contains("frm_Alarm"));
}

TEST(Editors, OfAnEarlierImageWriteNothing) {
  TestHost host;
  host.Download();
  auto& editor = host.OpenCameraSetup();
  editor.Find<TextBox>("m_CameraTitle(0)").Type("Old device");
  host.Identify(4, 6);
  host.Download();
  EXPECT_EQ(editor.Find<Button>("cmd_OK").Click(), Answer::kDone);
  EXPECT_EQ(
      host.OnlyMessage(),
      "Other data has arrived since this window was opened. Nothing was changed: close it and "
      "open it again.");
  EXPECT_EQ(editor.Find<TextBox>("m_CameraTitle(0)").Text(), "Old device");
  EXPECT_TRUE(host.Modified().empty());
}

}  // namespace
}  // namespace quorvel
