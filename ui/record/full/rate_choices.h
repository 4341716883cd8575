#pragma once

#include <functional>
#include <string>

#include "ui/editing/choices.h"

namespace quorvel {

struct Context;
struct Identity;

/// The rates that a recorder offers, as they read with the cameras that it records now; none on
/// other models.
struct RateChoices {
  RateChoices(Context& context, const Identity& id, const std::string& pps, const std::string& spp,
              const std::string& turbo);

  Choices of_cameras;  ///< for events, time-lapse and activity
  Choices of_alarms;
};

/// What a rate that was chosen is stored as.
using RateToStored = std::function<int(int rate)>;

/// A camera without a picture or switched off is not recorded. `line` is 0-based.
[[nodiscard]] bool CameraRecords(Context& context, int line);

}  // namespace quorvel
