#pragma once

#include <QComboBox>
#include <QSlider>

#include "platform/qt/choice_texts.h"
#include "platform/qt/control_view.h"
#include "quorvel/widgets/choice.h"
#include "quorvel/widgets/slider.h"

namespace quorvel::qt {

/// The toolkit's drop-down list. The wheel turns it only when it has the focus: a page that is
/// scrolled past it must not change it.
class DropDown : public QComboBox {
 public:
  explicit DropDown(QWidget& parent);
  /// Whether an item is reached by a key or the wheel, which go on from item to item.
  [[nodiscard]] bool Moves() const { return moves_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool moves_ = false;
};

class ComboBoxView : public ViewOf<ComboBox, DropDown> {
 public:
  ComboBoxView(VerbsUnderWay& verbs, ComboBox& model, QWidget& parent);
  void LetGo(bool model_lives) override;

 private:
  void Draw(Aspect what) override;

  ChoiceTexts* const texts_;  ///< owned by the toolkit's list
};

/// The toolkit's slider with one signal of its own: the user moved the handle, be it to where it
/// stood, by letting go of it there or with Space.
class Scale : public QSlider {
 public:
  explicit Scale(QWidget& parent);
  std::function<void(int)> on_slide;

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  int pressed_at_ = 0;
};

class SliderView : public ViewOf<Slider, Scale> {
 public:
  SliderView(VerbsUnderWay& verbs, Slider& model, QWidget& parent);

 private:
  void Draw(Aspect what) override;
};

}  // namespace quorvel::qt
