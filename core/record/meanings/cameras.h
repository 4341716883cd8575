#pragma once

#include "core/record/meanings/words.h"

namespace quorvel {

struct TextPosition : Words<"Top", "Bottom"> {};
struct SignalGains : Where<&Identity::IsTriplex, Within<0, 100>, Within<0, 9>> {};
struct Rejection : Words<"Low", "Medium", "High"> {};
/// Older devices store a size less one.
struct TargetSize : Where<&Identity::IsTriplex, Within<1, 255>, Within<0, 254>> {};
/// An alarm input. The factory settings link the cameras that a device lacks, too.
struct AlarmLink : Within<0, kMostCameras> {};
struct RecordRateChange
    : Where<&Identity::HasEventRecording, NoUnit, Words<"NO CHANGE", "2x", "4x", "I">> {};

/// Nine levels where the place has room for them, which the record's Extra_Quality_Feature says;
/// lite models have three in any case.
struct RecordQuality : NoUnit {
  struct Three : Words<"Standard", "Medium", "High"> {};
  struct Nine : Words<"Standard 1", "Standard 2", "Standard 3", "Medium 4", "Medium 5", "Medium 6",
                      "High 7", "High 8", "High 9"> {};
  static AllowedNumbers Allowed(const Identity& id, Range storable) {
    const bool nine = storable.Holds(8) && !id.LiteRecordModel;
    return nine ? AllowedBy<Nine>(id, storable) : AllowedBy<Three>(id, storable);
  }
};

}  // namespace quorvel
