#pragma once

#include "quorvel/identity.h"

namespace quorvel {

/// What of recording a lite model has, and its record editor therefore shows.
struct LiteRecordFeatures {
  bool shared_mode;     ///< its cameras can be set all at once
  bool event_settings;  ///< event types, activity and durations, besides qualities and rates
  bool record_lock;
};

[[nodiscard]] inline LiteRecordFeatures LiteRecordFeaturesOf(const Identity& id) {
  LiteRecordFeatures features{};
  features.shared_mode = id.ModelCode < 10;
  features.event_settings = id.ModelCode != 20;
  features.record_lock = id.ModelCode > 7;
  return features;
}

}  // namespace quorvel
