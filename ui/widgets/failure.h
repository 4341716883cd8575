#pragma once

#include <string_view>

namespace quorvel {

class Platform;

/// The component's name: the title of message boxes that have none of their own.
inline constexpr const char* kComponentName = "Quorvel";

/// Tells of a failure with the message "Error found in " and the routine's name. Throws nothing.
void ReportFailure(Platform& platform, std::string_view routine) noexcept;

/// Runs `body`, an edge of the component: no exception leaves it. A failure is reported; what was
/// reached so far stays. True when the body ran to its end.
template <class Body>
bool GuardEdge(Platform& platform, std::string_view routine, Body&& body) noexcept {
  try {
    body();
    return true;
  } catch (...) {
    ReportFailure(platform, routine);
    return false;
  }
}

}  // namespace quorvel
