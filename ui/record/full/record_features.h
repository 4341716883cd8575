#pragma once

#include <string_view>

#include "quorvel/identity.h"

namespace quorvel {

/// What of recording a full model has, and its record editor therefore shows, all in one place.
struct RecordFeatures {
  // Pages.
  bool list_page;
  bool quality_page;
  bool speed_page;
  bool recorder_pages;  ///< events of each camera, and settings for all

  bool timers;            ///< the list page holds them instead of the cameras' sequence
  bool speeds_of_modes;   ///< seven speeds of time-lapse modes instead of a free range
  bool record_mode;       ///< the options of the speed page choose it instead of the lock
  bool record_lock;       ///< the speed page shows its options
  bool triplex_settings;  ///< a record lock, and a third record mode
  bool associations;      ///< each camera's events record three others with it
  bool turbo_mode;
};

/// `blocks` is the image's own block count.
[[nodiscard]] RecordFeatures RecordFeaturesOf(const Identity& id, int blocks);

/// Whether a full model's rates are those of the PAL standard.
[[nodiscard]] bool RecordsPal(const Identity& id, std::string_view model_name);

}  // namespace quorvel
