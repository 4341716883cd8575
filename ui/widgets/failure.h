#pragma once

#include <string_view>

namespace quorvel {

class Platform;

/// The component's name: the title of message boxes that have none of their own.
inline constexpr const char* kComponentName = "Quorvel";

/// Tells of a failure with the message "Error found in " and the routine's name. Throws nothing.
void ReportFailure(Platform& platform, std::string_view routine) noexcept;

}  // namespace quorvel
