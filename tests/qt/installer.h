#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "quorvel/default_images.h"
#include "quorvel/identity.h"
#include "quorvel/main_menu_ctrl.h"
#include "quorvel/qt_platform.h"
#include "resources/text_table.h"
#include "tests/host/text_source.h"
#include "tests/ui/editor_items.h"

namespace quorvel {

struct Device {
  Byte cameras;
  Byte code;
  char variant;
};
/// One of each family, with each number of cameras.
inline constexpr Device kFamilies[] = {{16, 0, '4'}, {10, 1, '1'}, {16, 2, 'A'}, {16, 6, '2'},
                                       {9, 8, '1'},  {4, 15, '0'}, {4, 16, 'C'}};

/// A control with the settings of a device, whose editors are opened on screen through its menu.
class Installer : public QtPlatform, private MainMenuEvents {
 public:
  /// `texts` answers for the component's texts; none: they are English.
  explicit Installer(const Device& device, const TextSource::Answer& texts = nullptr)
      : control_(*this, *this) {
    constexpr Byte kBlocks = 225;  // with which a device has all that its model can have
    constexpr std::int16_t kTextSource = 191;
    if (texts) RegisterTexts(Classes(), "Texts", texts);
    if (texts) control_.CustomWithString(kTextSource, 0, 0, "Texts");
    BlockImage image = LoadDefaultImage(401);
    image.ResizeBlocks(kBlocks);
    image.Block(1)[kBlockCountByte] = kBlocks;
    image.Block(183)[7] = static_cast<Byte>(device.variant);
    WriteIdentityBlock(image, device.cameras, device.code, "UNIT 1");
    std::vector<Byte> whole(image.Bytes().begin(), image.Bytes().end());
    whole.push_back(0);
    control_.HostCommId(1);
    control_.FillDataBlk(whole);
    control_.HostCommId(0);
    control_.Custom(15, 1, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return menu_ != nullptr; }));
  }

  /// The items of the menu that open an editor.
  [[nodiscard]] std::vector<std::string> Items() const { return EditorItems(menu_->Root()); }
  Dialog& Open(const std::string& item) {
    EXPECT_EQ(menu_->Choose(item), Answer::kDone);
    QTest::qWait(0);
    return *opened_;
  }

  void PopUp(std::shared_ptr<PopupMenu> menu, int /*x*/, int /*y*/) override {
    menu_ = std::move(menu);
  }
  void Show(Dialog& dialog) override {
    opened_ = &dialog;
    QtPlatform::Show(dialog);
  }
  /// Leaves a window without what was changed there; other questions are not expected.
  bool Ask(const Message& message) override {
    EXPECT_TRUE(message.ok_without_user) << message.text;
    return true;
  }

 private:
  std::shared_ptr<PopupMenu> menu_;
  Dialog* opened_ = nullptr;
  MainMenuCtrl control_;
};

}  // namespace quorvel
