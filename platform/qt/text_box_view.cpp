#include "platform/qt/text_box_view.h"

#include <algorithm>

namespace quorvel::qt {

namespace {

constexpr int kNoLimit = 32767;

}  // namespace

TextBoxView::TextBoxView(VerbsUnderWay& verbs, TextBox& model, QWidget& parent)
    : ViewOf(verbs, model, new QLineEdit(&parent)) {
  GetBody()->setDragEnabled(false);  // dragging text runs a loop in which the window could go
  QObject::connect(GetBody(), &QLineEdit::textEdited, Context(), [this](const QString& text) {
    Act([&text](TextBox& box) { box.Type(Stored(text)); });
  });
  DrawAll();
}

void TextBoxView::Draw(Aspect what) {
  QLineEdit& edit = *GetBody();
  const QString text = Shown(GetModel()->Text());
  // The toolkit would cut a longer text that the program set, so the limit waits until the text
  // keeps to it. Without the limit, typing in the middle would push the last characters out.
  const int limit = GetModel()->MaxLength();
  const int allowed = limit > 0 && text.size() <= limit ? limit : kNoLimit;
  if (edit.maxLength() != allowed && allowed == kNoLimit) edit.setMaxLength(allowed);
  if (edit.text() != text) {
    // The cursor keeps its place from the end: right for a rewriting that drops what was typed.
    const auto from_end = edit.text().size() - edit.cursorPosition();
    edit.setText(text);
    edit.setCursorPosition(static_cast<int>(std::max<qsizetype>(text.size() - from_end, 0)));
  }
  if (edit.maxLength() != allowed) {
    const int cursor = edit.cursorPosition();
    edit.setMaxLength(allowed);
    edit.setCursorPosition(cursor);
  }
  if (what == Aspect::kState) FitWidth();
}

void TextBoxView::FitWidth() {
  constexpr int kShort = 5;
  constexpr int kWidest = 24;
  constexpr int kFrame = 18;
  const int limit = GetModel()->MaxLength();
  if (limit <= 0) return;
  const int width =
      GetBody()->fontMetrics().horizontalAdvance(QString(std::min(limit, kWidest), 'M')) + kFrame;
  GetBody()->setMinimumWidth(width);
  if (limit <= kShort) GetBody()->setMaximumWidth(width);
}

}  // namespace quorvel::qt
