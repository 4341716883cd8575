#include "quorvel/widgets/slider.h"

#include <algorithm>

#include "ui/widgets/gestures.h"

namespace quorvel {

Slider::Slider(Dialog& dialog, std::string name)
    : Widget(dialog, WidgetKind::kSlider, std::move(name)) {}

std::string Slider::ValueText() const {
  return std::to_string(value_) + " of " + std::to_string(minimum_) + ".." +
         std::to_string(maximum_);
}

void Slider::SetRange(int minimum, int maximum) {
  Remember(Aspect::kState, minimum_, maximum_);
  minimum_ = minimum;
  maximum_ = std::max(minimum, maximum);
  Redraw(Aspect::kState);
}

void Slider::SetSteps(int step, int large_step) {
  step_ = step;
  large_step_ = large_step;
  Redraw(Aspect::kState);
}

void Slider::SetValue(int value) {
  Remember(Aspect::kSelection, value_, edited_);
  value_ = value;
  edited_ = false;
  Redraw(Aspect::kSelection);
}

Answer Slider::Slide(int value) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (value < minimum_ || value > maximum_) return Answer::kNoSuchPlace;
  const Gesture gesture(*this, Gesture::Kind::kGoesOn);
  Remember(Aspect::kSelection, value_, edited_);
  value_ = value;
  edited_ = true;
  Redraw(Aspect::kSelection);
  Raise(on_change);
  return refusal;
}

}  // namespace quorvel
