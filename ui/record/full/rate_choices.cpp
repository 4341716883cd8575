#include "ui/record/full/rate_choices.h"

#include <utility>

#include "ui/context.h"
#include "ui/record/full/record_features.h"
#include "ui/record/record_rates.h"

namespace quorvel {

namespace {

constexpr int kLastAlarmRate = 5;

/// Puts rates into words for one device.
class RateWords {
 public:
  RateWords(Context& context, const Identity& id, RateModel model, std::string turbo)
      : context_(context), model_(std::move(model)), turbo_("  " + std::move(turbo)) {
    MuxData& record = context.device.Record();
    pal_ = RecordsPal(id, record.MuxModelName());
    for (int camera = 0; camera < id.MaxCam; ++camera) {
      if (CameraRecords(context, camera)) ++cameras_;
    }
  }

  /// The rates up to `last`, behind that of turbo while it is on.
  [[nodiscard]] Choices UpTo(int last, bool single_only) const {
    const bool turbo = ListToRateIndex(model_, 0) == kTurboRate;
    const int lines = last + (turbo ? 2 : 1);
    Choices rates;
    for (int line = 0; line < lines; ++line) {
      const int rate = ListToRateIndex(model_, line);
      rates.Add(rate, Text(rate, single_only));
    }
    // A camera may hold the turbo rate while turbo is off.
    if (!turbo) rates.Reads(kTurboRate, Text(kTurboRate, single_only));
    return rates;
  }

 private:
  [[nodiscard]] std::string Text(int rate, bool single_only) const {
    try {
      std::string text = RecRateText(model_, rate, cameras_, pal_, single_only);
      if (rate == kTurboRate && !text.empty()) text += turbo_;
      return text;
    } catch (...) {
      ReportFailure(context_.platform, "Triplex_RecRatio");
      return {};
    }
  }

  Context& context_;
  RateModel model_;
  std::string turbo_;
  bool pal_ = false;
  int cameras_ = 0;
};

}  // namespace

bool CameraRecords(Context& context, int line) {
  const Cameras* const camera = context.device.Record().CamInfo(line);
  return camera != nullptr && !camera->VidLoss() && !camera->disable();
}

RateChoices::RateChoices(Context& context, const Identity& id, const std::string& pps,
                         const std::string& spp, const std::string& turbo) {
  if (!id.HasEventRecording()) return;
  MuxData& record = context.device.Record();
  RateModel model;
  model.ModelCode = id.ModelCode;
  model.extended_table = id.ModelCode == 10 || id.ModelCode == 11 || id.Model4L;
  model.turbo_capable = id.PlexarProModel;
  model.PlaybackOld = record.PlaybackOld();
  model.Rec120sp = record.Rec120sp();
  model.pps = pps;
  model.spp = spp;
  const RateWords words(context, id, std::move(model), turbo);
  of_cameras = words.UpTo(kLastRate, false);
  of_alarms = words.UpTo(kLastAlarmRate, true);
}

}  // namespace quorvel
