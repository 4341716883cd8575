#pragma once

#include <string>
#include <string_view>

#include "quorvel/platform.h"

namespace quorvel {

/// The component's name: the title of message boxes that have none of their own.
inline constexpr const char* kComponentName = "Quorvel";

/// What the exception that is being handled says, as a sentence. Errors of images, files and hosts
/// say it in words. What other exceptions say is shown as well, since it may help.
[[nodiscard]] std::string FailureReason();

/// Writes a line of the log. Throws nothing.
void WriteLog(Platform& platform, LogLevel level, std::string_view text) noexcept;

/// Tells of the failure that is being handled: "Error found in " and the routine's name, or the
/// name of a dialog and, behind a dot, the place in it; in a second line the reason as a sentence.
/// The log hears it, too. Throws nothing.
void ReportFailure(Platform& platform, std::string_view routine,
                   std::string_view place = {}) noexcept;

/// The same in other words: `beginning`, and the reason behind it. Throws nothing.
void TellFailure(Platform& platform, std::string_view beginning) noexcept;

}  // namespace quorvel
