#pragma once

#include <memory>

#include "platform/qt/control_view.h"
#include "quorvel/widgets/controls.h"

namespace quorvel::qt {

using ViewPointer = std::unique_ptr<ControlView>;

/// Views of the controls that are no more than a caption, a tick or a line of panels.
[[nodiscard]] ViewPointer MakeLabel(VerbsUnderWay& verbs, Label& model, QWidget& parent);
[[nodiscard]] ViewPointer MakeButton(VerbsUnderWay& verbs, Button& model, QWidget& parent);
[[nodiscard]] ViewPointer MakeCheckBox(VerbsUnderWay& verbs, CheckBox& model, QWidget& parent);
[[nodiscard]] ViewPointer MakeOptionButton(VerbsUnderWay& verbs, OptionButton& model,
                                           QWidget& parent);
[[nodiscard]] ViewPointer MakeProgressBar(VerbsUnderWay& verbs, ProgressBar& model,
                                          QWidget& parent);
[[nodiscard]] ViewPointer MakeStatusBar(VerbsUnderWay& verbs, StatusBar& model, QWidget& parent);

}  // namespace quorvel::qt
