#pragma once

#include <string_view>

namespace quorvel {

class Platform;

/// The component's name: the title of message boxes that have none of their own.
inline constexpr const char* kComponentName = "Quorvel";

/// Tells of the failure that is being handled: "Error found in " and the routine's name, and in a
/// second line the reason as a sentence. Throws nothing.
void ReportFailure(Platform& platform, std::string_view routine) noexcept;

}  // namespace quorvel
