#pragma once

#include <string>
#include <string_view>

#include "quorvel/class_factory.h"
#include "quorvel/widgets.h"

namespace quorvel::muxhost {

/// A text half again as long, as other languages have it: every second letter comes twice.
[[nodiscard]] std::string Longer(std::string_view text);

/// Makes the texts of a dialog longer that are its own: captions, items, cells and panels. What
/// a user could have typed stays.
void MakeLonger(Dialog& dialog);

/// A text source that has the built-in texts, longer.
class LongTexts : public AutomationObject {
 public:
  std::string Call(std::string_view method, std::int32_t argument) override;
};

}  // namespace quorvel::muxhost
