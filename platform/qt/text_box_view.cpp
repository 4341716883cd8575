#include "platform/qt/text_box_view.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <string>
#include <utility>

#include "platform/qt/step_keys.h"

namespace quorvel::qt {

namespace {

bool Erases(const QKeyEvent& event) {
  return event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace;
}

}  // namespace

TextLine::TextLine(QWidget& parent) : QLineEdit(&parent) {
  setContextMenuPolicy(Qt::NoContextMenu);  // the window has one
  setDragEnabled(false);  // dragging text runs a loop in which the window could go
}

/// Steps are the window's, which knows them of all controls.
bool TextLine::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride &&
      IsStepKey(static_cast<const QKeyEvent&>(*event))) {
    event->ignore();
    return false;
  }
  return QLineEdit::event(event);
}

void TextLine::keyPressEvent(QKeyEvent* event) {
  if (IsStepKey(*event)) return event->ignore();
  if (!on_key(*event)) QLineEdit::keyPressEvent(event);
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
  if (!hasSelectedText()) on_focus(!arrives);  // a user who selects a part wants that part
}

TextBoxView::TextBoxView(VerbsUnderWay& verbs, TextBox& model, QWidget& parent)
    : ViewOf(verbs, model, new TextLine(parent)) {
  QObject::connect(GetBody(), &QLineEdit::textEdited, Context(), [this](const QString& text) {
    const bool at_once = GetModel() != nullptr && !GetModel()->TakenWhenLeft();
    if (at_once) Type(text, GetBody()->cursorPosition());
  });
  GetBody()->on_key = [this](const QKeyEvent& event) { return TakesKey(event); };
  QObject::connect(GetBody(), &QLineEdit::editingFinished, Context(), [this] { TakeWhole(); });
  GetBody()->on_focus = [this](bool by_click) {
    Act([by_click](TextBox& box) { box.Focus(by_click); });
    ShowSelection();
  };
  DrawAll();
}

void TextBoxView::TakeWhole() {
  const bool waits = GetModel() != nullptr && GetModel()->TakenWhenLeft();
  const QString typed = GetBody()->text();
  if (waits && typed != Shown(GetModel()->Text())) Type(typed, typed.size());
}

void TextBoxView::Type(const QString& text, qsizetype cursor) {
  const std::string before = Stored(text.left(cursor));
  const std::string after = Stored(text.mid(cursor));
  Act([&](TextBox& box) { box.Type(before, after); });
  if (GetBody()->hasFocus()) ShowSelection();
}

/// The key that goes on to the next box erases nothing, whatever is selected. One that erases in an
/// empty box says that it is to be empty, which the toolkit would not tell.
bool TextBoxView::TakesKey(const QKeyEvent& event) {
  if (GetModel() == nullptr) return false;
  const char mark = GetModel()->GoesOnWith();
  const QString text = GetBody()->text();
  if (mark != '\0' && event.text() == QLatin1Char(mark)) {
    const QString whole = text + QLatin1Char(mark);
    Type(whole, whole.size());
    return true;
  }
  if (text.isEmpty() && Erases(event)) {
    Type(text, 0);
    return true;
  }
  return false;
}

/// Only where the model selects: elsewhere the cursor stays where the typist is.
void TextBoxView::ShowSelection() {
  if (GetModel() == nullptr || GetModel()->SelectedCharacters() == 0) return;
  GetBody()->setSelection(0, GetModel()->SelectedCharacters());
}

void TextBoxView::Draw(Aspect what) {
  QLineEdit& edit = *GetBody();
  const QString text = Shown(GetModel()->Text());
  if (edit.text() != text) {
    // The cursor keeps its place from the end: right for a rewriting that drops what was typed.
    // The model keeps to the limit: a box that did would lose lines that are pasted.
    const auto from_end = edit.text().size() - edit.cursorPosition();
    edit.setText(text);
    edit.setCursorPosition(static_cast<int>(std::max<qsizetype>(text.size() - from_end, 0)));
  }
  QStringList notes{Shown(GetModel()->Note()), Shown(GetModel()->SpokenNote())};
  notes.removeAll(QString());
  edit.setAccessibleDescription(notes.join(QStringLiteral(". ")));
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
