#pragma once

#include <string>

#include "quorvel/export.h"
#include "quorvel/platform.h"
#include "quorvel/widgets/widget.h"

namespace quorvel {

/// What a host sees of the control inside its own window: a label with the component's name, which
/// can be clicked.
class QUORVEL_API ControlSurface {
 public:
  [[nodiscard]] const std::string& Label1() const { return label_; }
  [[nodiscard]] const Font& LabelFont() const { return font_; }
  [[nodiscard]] bool Enabled() const { return enabled_; }
  [[nodiscard]] Size Extent() const { return extent_; }

  void SetLabel(std::string text) { Change(label_, std::move(text)); }
  void SetFont(Font font) { Change(font_, std::move(font)); }
  void SetEnabled(bool enabled) { Change(enabled_, enabled); }
  void SetExtent(Size extent) { Change(extent_, extent); }
  /// Draws the surface anew.
  void Repaint() const {
    if (view_ != nullptr) view_->Refresh(Aspect::kState);
  }

  /// User verbs; a disabled surface refuses them.
  Answer Click() { return Raise(on_click); }
  Answer DoubleClick() { return Raise(on_double_click); }
  Handler on_click;
  Handler on_double_click;

  void AttachView(WidgetView* view) { view_ = view; }

 private:
  template <class Value>
  void Change(Value& place, Value value) {
    place = std::move(value);
    Repaint();
  }
  Answer Raise(const Handler& handler) const {
    if (!enabled_) return Answer::kDisabled;
    if (const Handler copy = handler) copy();  // the handler may destroy the surface
    return Answer::kDone;
  }

  std::string label_;
  Font font_;
  bool enabled_ = true;
  Size extent_;
  WidgetView* view_ = nullptr;
};

}  // namespace quorvel
