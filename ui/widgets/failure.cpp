#include "ui/widgets/failure.h"

#include <string>

#include "quorvel/platform.h"

namespace quorvel {

void ReportFailure(Platform& platform, std::string_view routine) noexcept {
  try {
    platform.Ask({"Error found in " + std::string(routine), kComponentName, Message::Buttons::kOk});
  } catch (...) {  // a platform that cannot even show a message leaves nobody to tell
  }
}

}  // namespace quorvel
