#pragma once

#include <QAbstractSpinBox>
#include <functional>

namespace quorvel::qt {

/// A box with a text of several parts, which is typed or stepped. It keeps no value of its own, so
/// it shows whatever the model holds, also nothing: the toolkit's own boxes for times and dates
/// replace what they cannot show.
class PartsBox : public QAbstractSpinBox {
 public:
  explicit PartsBox(QWidget& parent);
  /// What was typed is complete: the box is left, or Return was pressed.
  std::function<void(const QString&)> on_typed;
  /// The part at a place of the text is to go up or down.
  std::function<void(int place, int steps)> on_step;

  void ShowText(const QString& text);
  /// Space for a text as long as this one.
  void FitWidth(const QString& longest);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
  void stepBy(int steps) override;
  /// Hands over what was typed and not yet taken.
  void Take(bool unchanged_too);

 protected:
  [[nodiscard]] StepEnabled stepEnabled() const override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QString shown_;
  QString longest_;
};

}  // namespace quorvel::qt
