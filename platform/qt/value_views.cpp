#include "platform/qt/value_views.h"

#include <QKeyEvent>
#include <QPointer>
#include <QWheelEvent>

namespace quorvel::qt {

DropDown::DropDown(QWidget& parent) : QComboBox(&parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizeAdjustPolicy(AdjustToContents);
}

void DropDown::keyPressEvent(QKeyEvent* event) {
  const QPointer<DropDown> life(this);
  moves_ = true;
  QComboBox::keyPressEvent(event);
  if (life != nullptr) moves_ = false;
}

void DropDown::wheelEvent(QWheelEvent* event) {
  if (!hasFocus()) return event->ignore();
  const QPointer<DropDown> life(this);
  moves_ = true;
  QComboBox::wheelEvent(event);
  if (life != nullptr) moves_ = false;
}

ComboBoxView::ComboBoxView(VerbsUnderWay& verbs, ComboBox& model, QWidget& parent)
    : ViewOf(verbs, model, new DropDown(parent)), texts_(new ChoiceTexts(model, *GetBody())) {
  GetBody()->setModel(texts_);
  // Of all signals only this one comes from the user alone, and also for the current item.
  QObject::connect(GetBody(), &QComboBox::activated, Context(), [this](int item) {
    Act([item, moves = GetBody()->Moves()](ComboBox& box) {
      moves ? box.MoveOnTo(item) : box.Choose(item);
    });
  });
  DrawAll();
}

void ComboBoxView::LetGo(bool model_lives) {
  if (GetModel() != nullptr) texts_->LetGo();
  ViewOf::LetGo(model_lives);
}

void ComboBoxView::Draw(Aspect what) {
  if (what == Aspect::kContent) texts_->Renew();
  // The toolkit makes the first item current by itself; without a current item it is blank.
  GetBody()->setCurrentIndex(GetModel()->Current());
}

Scale::Scale(QWidget& parent) : QSlider(Qt::Horizontal, &parent) {
  constexpr int kLeastWidth = 120;
  setFocusPolicy(Qt::StrongFocus);
  setMinimumWidth(kLeastWidth);
  QObject::connect(this, &QSlider::valueChanged, this, [this](int value) { on_slide(value); });
  QObject::connect(this, &QSlider::sliderPressed, this, [this] { pressed_at_ = value(); });
  QObject::connect(this, &QSlider::sliderReleased, this, [this] {
    if (value() == pressed_at_) on_slide(value());
  });
}

void Scale::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QSlider::wheelEvent(event);
  } else {
    event->ignore();
  }
}

void Scale::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space) {
    on_slide(value());
  } else {
    QSlider::keyPressEvent(event);
  }
}

SliderView::SliderView(VerbsUnderWay& verbs, Slider& model, QWidget& parent)
    : ViewOf(verbs, model, new Scale(parent)) {
  GetBody()->on_slide = [this](int value) { Act([value](Slider& it) { it.Slide(value); }); };
  DrawAll();
}

void SliderView::Draw(Aspect /*what*/) {
  Scale& scale = *GetBody();
  scale.setRange(GetModel()->Minimum(), GetModel()->Maximum());
  scale.setSingleStep(GetModel()->Step());
  scale.setPageStep(GetModel()->LargeStep());
  scale.setValue(GetModel()->Value());  // one outside the scale is drawn at its nearest end
}

}  // namespace quorvel::qt
