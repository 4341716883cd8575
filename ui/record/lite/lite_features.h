#pragma once

#include "core/identity.h"

namespace quorvel {

/// What of recording a lite model has, and its record editor therefore shows.
struct LiteRecordFeatures {
  bool shared_mode;     ///< its cameras can be set all at once
  bool event_settings;  ///< event types, activity and durations, besides qualities and rates
  bool record_lock;
};

[[nodiscard]] inline LiteRecordFeatures LiteRecordFeaturesOf(const Identity& id) {
  return {id.ModelCode<10, id.ModelCode != 20, id.ModelCode> 7};
}

}  // namespace quorvel
