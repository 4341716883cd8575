#include "platform/qt/parts_box.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <algorithm>

#include "platform/qt/step_keys.h"

namespace quorvel::qt {

PartsBox::PartsBox(QWidget& parent) : QAbstractSpinBox(&parent) { setFocusPolicy(Qt::StrongFocus); }

void PartsBox::ShowText(const QString& text) {
  shown_ = text;
  if (lineEdit()->text() == text) return;
  const int place = lineEdit()->cursorPosition();
  lineEdit()->setText(text);
  lineEdit()->setCursorPosition(std::min(place, static_cast<int>(text.size())));
}

void PartsBox::FitWidth(const QString& longest) {
  longest_ = longest;
  updateGeometry();
}

QSize PartsBox::sizeHint() const {
  constexpr int kCursor = 4;
  const QMargins margins = lineEdit()->textMargins();
  const QSize text(fontMetrics().horizontalAdvance(longest_) + kCursor + margins.right(),
                   lineEdit()->sizeHint().height());
  QStyleOptionSpinBox option;
  initStyleOption(&option);
  return style()->sizeFromContents(QStyle::CT_SpinBox, &option, text, this);
}

QAbstractSpinBox::StepEnabled PartsBox::stepEnabled() const {
  return StepUpEnabled | StepDownEnabled;
}

void PartsBox::stepBy(int steps) {
  Take(false);
  on_step(lineEdit()->cursorPosition(), steps);
}

/// A text that is no value is not taken, and the view shows the model's again.
void PartsBox::Take(bool unchanged_too) {
  if (unchanged_too || lineEdit()->text() != shown_) on_typed(lineEdit()->text());
}

void PartsBox::focusOutEvent(QFocusEvent* event) {
  QAbstractSpinBox::focusOutEvent(event);
  Take(false);
}

void PartsBox::keyPressEvent(QKeyEvent* event) {
  if (IsStepKey(*event)) return event->ignore();
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter) {
    QAbstractSpinBox::keyPressEvent(event);
    return;
  }
  // Ctrl+Enter goes on to the dialog, as its OK.
  const bool goes_on = (event->modifiers() & Qt::ControlModifier) != 0;
  Take(!goes_on);
  event->setAccepted(!goes_on);
}

void PartsBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QAbstractSpinBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace quorvel::qt
