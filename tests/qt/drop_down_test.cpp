#include <QAbstractItemView>

#include "tests/qt/muxhost_on_screen.h"
#include "tests/qt/on_screen.h"

namespace quorvel::muxhost {
namespace {

using MuxhostDropDown = MuxhostOnScreen;

TEST_F(MuxhostDropDown, KeepsItsListAndPassesTheWheelOn) {
  auto* const box = window_.centralWidget()->findChildren<QComboBox*>().at(3);
  ASSERT_EQ(box->itemText(1), "Image in one call");
  box->showPopup();
  QTest::qWait(300);
  EXPECT_TRUE(box->view()->isVisible());
  box->hidePopup();
  for (const bool focus : {false, true}) {
    if (focus) box->setFocus();
    if (focus) window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return box->hasFocus() == focus; }));
    TurnWheel(*box, {5, 5}, {0, -120});
    EXPECT_EQ(box->currentIndex(), focus ? 1 : 0);
  }
}

}  // namespace
}  // namespace quorvel::muxhost
