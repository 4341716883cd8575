#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

/// Of every editor that a model has: a factory image holds what it can show.
TEST(Editors, OpenAndOkMarksNothingOnAnyModel) {
  TestHost host;
  int opened = 0;
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
        const auto items = host.platform.Menu().Root().children;
        for (const MenuItem& item : items) {
          if (item.separator || !item.children.empty() || item.name == "mnu_Exit") continue;
          host.OpenMenu();
          if (host.platform.ChooseMenu(item.name) != Answer::kDone) continue;
          ++opened;
          Dialog& editor = *host.platform.Windows().back();
          EXPECT_EQ(editor.Find<Button>("cmd_OK").Click(), Answer::kDone);
          EXPECT_EQ(host.Modified(), std::vector<int>{})
              << editor.Name() << " " << code << " " << variant;
        }
      }
    }
  }
  EXPECT_GE(opened, 2 * 21 * 6);
}

TEST(Editors, OfAnEarlierImageWriteNothing) {
  TestHost host;
  host.Download();
  auto& editor = host.OpenCameraSetup();
  editor.Find<TextBox>("m_CameraTitle(0)").Type("Old device");
  host.Identify(4, 6);
  host.Download();
  EXPECT_EQ(editor.Find<Button>("cmd_OK").Click(), Answer::kDone);
  EXPECT_EQ(host.OnlyMessage(), "The current data does not match the data of the remote device");
  EXPECT_EQ(editor.Find<TextBox>("m_CameraTitle(0)").Text(), "Old device");
  EXPECT_TRUE(host.Modified().empty());
}

}  // namespace
}  // namespace quorvel
