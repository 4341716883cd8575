#pragma once

#include <QString>
#include <cstddef>
#include <string>

#include "muxhost/texts/speech.h"

namespace quorvel::muxhost {

/// A text of the window in the user's language.
[[nodiscard]] QString Tr(const char* english);

/// One of two texts, as there is one of what they tell of or several.
[[nodiscard]] QString Tr(std::size_t count, const char* one, const char* several);

/// The same for what knows nothing of windows: a Speech.
[[nodiscard]] std::string Say(const char* english);

}  // namespace quorvel::muxhost
