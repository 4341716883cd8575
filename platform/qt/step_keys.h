#pragma once

#include <QKeyEvent>
#include <QKeySequence>

namespace quorvel::qt {

/// Ctrl+Y does again what was taken back, also where the system has another key for it.
inline bool IsRedoKey(const QKeyEvent& event) {
  return event.matches(QKeySequence::Redo) ||
         (event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier);
}

/// Puts back the control that has the focus.
inline bool IsPutBackKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_Backspace && event.modifiers() == Qt::ControlModifier;
}

inline bool IsStepKey(const QKeyEvent& event) {
  return event.matches(QKeySequence::Undo) || IsRedoKey(event) || IsPutBackKey(event);
}

}  // namespace quorvel::qt
