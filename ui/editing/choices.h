#pragma once

#include "quorvel/widgets.h"

namespace quorvel {

/// Where a list or option group stands, or the stored value while it shows none of its own: nobody
/// has chosen, so the setting stays as it is.
[[nodiscard]] inline int Chosen(const ChoiceWidget& list, int stored) {
  return list.Current() == ChoiceWidget::kNone ? stored : list.Current();
}
[[nodiscard]] inline int Chosen(const ControlArray<OptionButton>& options, int stored) {
  const int selected = options.Selected();
  return selected == ControlArray<OptionButton>::kNone ? stored : selected;
}

}  // namespace quorvel
