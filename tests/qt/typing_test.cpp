#include <QClipboard>

#include "tests/qt/on_screen.h"
#include "ui/editing/octet_boxes.h"

namespace quorvel {
namespace {

/// An address, and titles below one another.
class Typed : public Dialog {
 public:
  explicit Typed(Platform& platform) : Dialog(platform, "frm_Typed") {
    for (TextBox& title : titles) title.SetMaxLength(5);
    SetLayout(Column(Dotted(octets, dots), Lines(titles)));
  }
  ControlArray<TextBox> octets{*this, "octet", 4};
  ControlArray<Label> dots{*this, "dot", 3};
  ControlArray<TextBox> titles{*this, "title", 3};
  OctetBoxes address{octets};
  TextSeries lines{titles, TextSeries::Kind::kLines};
  std::string notes;
};

class QtTyping : public OnScreenOf<Typed> {
 protected:
  QtTyping() { Show(); }
  QLineEdit& Line(const std::string& name) { return Body<QLineEdit>(name); }
  void Paste(QLineEdit& line, const char* text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&line, Qt::Key_V, Qt::ControlModifier);
    Settle();
  }
  [[nodiscard]] static std::string Texts(ControlArray<TextBox>& boxes) {
    std::string texts;
    for (TextBox& box : boxes) texts += box.Text() + "|";
    return texts;
  }
};

TEST_F(QtTyping, DotsLeadThroughAnAddress) {
  for (int i = 0; i < 4; ++i) dialog_->address.Show(i, 9);
  Line("octet(3)").setFocus();
  Line("octet(0)").setFocus(Qt::TabFocusReason);
  for (const char* const keys : {"192", ".", "168", ".", ".", "7", "."}) {
    QTest::keyClicks(Window().focusWidget(), keys);
  }
  EXPECT_EQ(Texts(dialog_->octets), "192|168|9|7|");
  EXPECT_EQ(Window().focusWidget(), &Line("octet(3)"));
  EXPECT_EQ(Line("octet(3)").selectedText(), "7") << "the last box keeps what was typed";
  Line("octet(0)").setFocus(Qt::TabFocusReason);
  Line("octet(0)").setCursorPosition(1);
  QTest::keyClicks(&Line("octet(0)"), ".");
  EXPECT_EQ(Texts(dialog_->octets), "192|168|9|7|") << "in the middle of a number";
  Line("octet(2)").setFocus(Qt::TabFocusReason);
  Paste(Line("octet(2)"), "10.20.30.40");
  EXPECT_EQ(Texts(dialog_->octets), "10|20|30|40|");
  EXPECT_EQ(Line("octet(0)").text(), "10");
}

TEST_F(QtTyping, LinesFillTitlesAndNothingIsPushedOut) {
  QLineEdit& first = Line("title(0)");
  first.setFocus();
  Paste(first, "North\r\nSouth gate\n");
  EXPECT_EQ(Texts(dialog_->titles), "North|South||");
  first.setCursorPosition(2);
  QTest::keyClicks(&first, "xy");
  EXPECT_EQ(first.text(), "North") << "a full title takes no more";
  EXPECT_EQ(first.cursorPosition(), 2);
  first.setSelection(1, 2);
  Paste(first, "abc\nEast");
  EXPECT_EQ(Texts(dialog_->titles), "Nabth|East||");
  EXPECT_EQ(first.cursorPosition(), 3);
}

TEST_F(QtTyping, DeleteInAnEmptyBoxSaysThatItIsToBeEmpty) {
  Line("title(2)").setFocus();
  QTest::keyClick(&Line("title(2)"), Qt::Key_Left);
  EXPECT_FALSE(dialog_->titles(2).Edited());
  QTest::keyClick(&Line("title(2)"), Qt::Key_Delete);
  EXPECT_TRUE(dialog_->titles(2).Edited());
}

}  // namespace
}  // namespace quorvel
