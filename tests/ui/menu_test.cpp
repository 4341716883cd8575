#include <gtest/gtest.h>

#include "quorvel/headless_platform.h"
#include "ui/context.h"
#include "ui/menu/frm_menu.h"

namespace quorvel {
namespace {

TEST(Menu, PopsUpAShortWhileAfterItsFormHasLoadedAndEachAction) {
  HeadlessPlatform platform;
  Context context(platform);
  const auto form = std::make_shared<frm_Menu>(context);
  form->Load();
  platform.RunUntilIdle();
  EXPECT_EQ(platform.ChooseMenu("mnu_LockKB"), Answer::kDone);
  platform.Advance(2);
  EXPECT_FALSE(platform.MenuIsUp());
  platform.Advance(1);
  EXPECT_TRUE(platform.MenuIsUp());
}

}  // namespace
}  // namespace quorvel
