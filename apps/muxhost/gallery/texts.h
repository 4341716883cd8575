#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "muxhost/texts/language.h"
#include "quorvel/widgets.h"

namespace quorvel::muxhost {

/// A text half again as long, as other languages have it: every second letter comes twice.
[[nodiscard]] std::string Longer(std::string_view text);

/// Makes the texts of a dialog longer that are its own: captions, items, cells and panels. What
/// a user could have typed stays.
void MakeLonger(Dialog& dialog);

/// The component's texts in a language, longer; none: English.
[[nodiscard]] std::shared_ptr<const Language> LongTexts(
    const std::shared_ptr<const Language>& language);

}  // namespace quorvel::muxhost
