#pragma once

#include <QAbstractSpinBox>
#include <functional>
#include <memory>

#include "platform/qt/control_view.h"
#include "quorvel/widgets/pickers.h"

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
  void FitWidth(const QString& longest);
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
};

[[nodiscard]] std::unique_ptr<ControlView> MakeTimePicker(VerbsUnderWay& verbs, TimePicker& model,
                                                          QWidget& parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeDatePicker(VerbsUnderWay& verbs, DatePicker& model,
                                                          QWidget& parent);

}  // namespace quorvel::qt
