#include <gtest/gtest.h>

#include <random>
#include <thread>

#include "tests/ui/editor_items.h"
#include "tests/ui/use.h"

namespace quorvel {
namespace {

/// An installer with a device, a platform and a control of his own, on a thread of his own.
class Installer {
 public:
  explicit Installer(Byte code) : random_(code) {
    host_.device = LoadDefaultImage(code < 6 ? 301 : 401);
    host_.device.ResizeBlocks(225);
    host_.device.Block(1)[kBlockCountByte] = 225;
    host_.Identify(4, code, '2');
  }

  /// Everything that a control does; the image that comes of it.
  std::vector<Byte> Work() {
    host_.Download();
    host_.OpenMenu();
    for (const std::string& item : EditorItems(host_.platform.Menu().Root())) Edit(item);
    for (const SettingDescription& it : host_.control->DescribeSettings("Info")) {
      host_.control->SetSetting(it.name, std::to_string(it.least + Below(3)));
    }
    const std::vector<Byte> image = host_.control->EditedImage();
    EXPECT_FALSE(host_.control->DifferencesFrom(host_.device.Bytes())->empty());
    static_cast<void>(host_.control->SettingFindings());
    EXPECT_TRUE(host_.control->StartSend({}));
    host_.platform.RunUntilIdle();
    EXPECT_TRUE(host_.control->LoadSettings(host_.control->SaveSettings()));
    host_.control->Custom(16, 0, 0);
    host_.platform.RunUntilIdle();
    return image;
  }

  // What a user does: see Use.
  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
  int Place(int count) { return Below(std::max(count, 1)); }
  int Year() { return 2000 + Below(60); }
  std::string Text(const Widget& /*control*/) { return std::to_string(Below(300)) + "@é"; }

 private:
  void Edit(const std::string& item) {
    Dialog& editor = *OpenEditor(host_, item);
    for (Widget* const widget : editor.Widgets()) {
      if (widget->Kind() != WidgetKind::kButton) Use(*widget, *this);
    }
    host_.platform.AnswerNext(true);  // a doubt about an address
    editor.DefaultButton()->Click();
  }

  std::mt19937 random_;
  TestHost host_;
};

/// Controls on threads of their own share nothing: what each does is what it does alone.
TEST(TwoControls, DoNotMeet) {
  for (const Byte code : {0, 1, 2, 6, 9, 14, 18}) {
    const auto other = static_cast<Byte>(code + 1);
    std::vector<Byte> one_image, other_image;
    std::thread one([&] { one_image = Installer(code).Work(); });
    std::thread two([&] { other_image = Installer(other).Work(); });
    one.join();
    two.join();
    EXPECT_TRUE(one_image == Installer(code).Work()) << "code " << int{code};
    EXPECT_TRUE(other_image == Installer(other).Work()) << "code " << int{other};
  }
}

}  // namespace
}  // namespace quorvel
