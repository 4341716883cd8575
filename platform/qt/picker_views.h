#pragma once

#include <memory>

#include "platform/qt/control_view.h"
#include "quorvel/widgets/pickers.h"

namespace quorvel::qt {

[[nodiscard]] std::unique_ptr<ControlView> MakeTimePicker(VerbsUnderWay& verbs, TimePicker& model,
                                                          QWidget& parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeDatePicker(VerbsUnderWay& verbs, DatePicker& model,
                                                          QWidget& parent);

}  // namespace quorvel::qt
