#include "platform/qt/text_box_view.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

namespace quorvel::qt {

namespace {

constexpr int kNoLimit = 32767;

}  // namespace

TextLine::TextLine(QWidget& parent) : QLineEdit(&parent) {
  setDragEnabled(false);  // dragging text runs a loop in which the window could go
}

void TextLine::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  came_by_click_ = event->reason() == Qt::MouseFocusReason;
  const bool by_key = event->reason() == Qt::TabFocusReason ||
                      event->reason() == Qt::BacktabFocusReason ||
                      event->reason() == Qt::ShortcutFocusReason;
  if (by_key || event->reason() == Qt::OtherFocusReason) on_focus(false);
}

void TextLine::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (event->button() != Qt::LeftButton) return;
  const bool arrives = std::exchange(came_by_click_, false);
  if (!hasSelectedText()) on_focus(!arrives);  // somebody who selects a part wants that part
}

TextBoxView::TextBoxView(VerbsUnderWay& verbs, TextBox& model, QWidget& parent)
    : ViewOf(verbs, model, new TextLine(parent)) {
  QObject::connect(GetBody(), &QLineEdit::textEdited, Context(), [this](const QString& text) {
    if (GetModel() != nullptr && !GetModel()->TakenWhenLeft()) Type(text);
  });
  QObject::connect(GetBody(), &QLineEdit::editingFinished, Context(), [this] { TakeWhole(); });
  GetBody()->on_focus = [this](bool by_click) {
    Act([by_click](TextBox& box) { box.Focus(by_click); });
    ShowSelection();
  };
  DrawAll();
}

void TextBoxView::TakeWhole() {
  const bool waits = GetModel() != nullptr && GetModel()->TakenWhenLeft();
  if (waits && GetBody()->text() != Shown(GetModel()->Text())) Type(GetBody()->text());
}

void TextBoxView::Type(const QString& text) {
  Act([&text](TextBox& box) { box.Type(Stored(text)); });
  if (GetBody()->hasFocus()) ShowSelection();
}

/// Only where the model selects: elsewhere the cursor stays where the typist is.
void TextBoxView::ShowSelection() {
  if (GetModel() == nullptr || GetModel()->SelectedCharacters() == 0) return;
  GetBody()->setSelection(0, GetModel()->SelectedCharacters());
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
  const int limit = GetModel()->ShownLength();
  if (limit <= 0) return;
  const int width =
      GetBody()->fontMetrics().horizontalAdvance(QString(std::min(limit, kWidest), 'M')) + kFrame;
  GetBody()->setMinimumWidth(width);
  if (limit <= kShort) GetBody()->setMaximumWidth(width);
}

}  // namespace quorvel::qt
