#include "ui/record/full/record_features.h"

namespace quorvel {

namespace {
constexpr int kLastAssociationBlock = 216;
constexpr int kDvr = 1;
}  // namespace

RecordFeatures RecordFeaturesOf(const Identity& id, int blocks) {
  const bool recorder = id.HasEventRecording();
  const bool basic = id.IsMultiplexer() && id.VariantChar == 'A';

  RecordFeatures features{};
  features.list_page = !basic;
  features.quality_page = !id.IsMultiplexer();
  features.speed_page = !recorder;
  features.recorder_pages = recorder;

  features.timers = recorder;
  features.speeds_of_modes = id.ModelCode == kDvr;
  features.record_mode = id.ModelCode == kDvr;
  features.record_lock = id.ModelCode == kDvr || id.RecorderKind == 0;
  features.triplex_settings = id.IsTriplex();
  features.associations = id.IsTriplex() && blocks >= kLastAssociationBlock;
  features.turbo_mode = id.PlexarProModel;
  return features;
}

bool RecordsPal(const Identity& id, std::string_view model_name) {
  for (const int pal : {3, 7, 19}) {
    if (id.ModelCode == pal) return true;
  }
  switch (id.VariantChar) {
    case '1':
    case 'C':
    case '2': return true;
    case '0': return model_name.ends_with("X ");
    default: return false;
  }
}

}  // namespace quorvel
