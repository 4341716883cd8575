#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/layout/any_setting.h"

namespace quorvel {

// Values of settings as they are written by hand, in the terms of an installer.

/// The number that a flag or a number of a setting would hold; nothing where `text` says none that
/// the setting can have.
[[nodiscard]] std::optional<int> ReadNumber(std::string_view text,
                                            const layout::AnySetting& setting,
                                            const AllowedNumbers& allowed);

/// Without the blanks at both ends.
[[nodiscard]] std::string_view Trimmed(std::string_view text);

/// The characters of a text, which may stand in quotes as QuotedText writes them; nothing for
/// quotes that are not closed, or an escape that is none.
[[nodiscard]] std::optional<std::string> ReadText(std::string_view text);

}  // namespace quorvel
