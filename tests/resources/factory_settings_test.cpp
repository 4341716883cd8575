#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "core/codec.h"
#include "resources/default_images.h"

namespace quorvel {
namespace {

/// What the editors of model codes `first` to `last` can show.
struct Range {
  int first;
  int last;
  int low;
  int high;
  std::function<void(MuxData&, const Range&)> check = {};
};
constexpr int kMost = 20;

template <class Setting>
void Check(const Setting& setting, const Range& range) {
  const auto expect_inside = [&](int value) {
    EXPECT_TRUE(range.low <= value && value <= range.high) << setting.Name() << " is " << value;
  };
  if constexpr (requires { Setting::kSize; }) {
    for (int i = 0; i < Setting::kSize; ++i) expect_inside(setting(i));
  } else {
    expect_inside(setting());
  }
}

template <class... S>
Range Of(Range range, S MuxData::*... settings) {
  range.check = [=](MuxData& rec, const Range& r) { (Check(rec.*settings, r), ...); };
  return range;
}
template <class Part, class... S>
Range In(Range range, Part MuxData::*part, S Part::*... settings) {
  range.check = [=](MuxData& rec, const Range& r) { (Check(rec.*part.*settings, r), ...); };
  return range;
}
template <class All, class Element, class... S>
Range Each(Range range, All (MuxData::*all)(), S Element::*... settings) {
  range.check = [=](MuxData& rec, const Range& r) {
    for (Element& element : (rec.*all)()) (Check(element.*settings, r), ...);
  };
  return range;
}

using M = MuxData;

// Settings of one bit, and what decoding repairs, cannot be wrong and are left out.
const Range kRanges[] = {
    Each({0, 5, 0, 9}, &M::AllCameras, &Cameras::SignalGain),
    Each({6, kMost, 0, 100}, &M::AllCameras, &Cameras::SignalGain),
    Each({0, kMost, 0, 2}, &M::AllCameras, &Cameras::TextPos, &Cameras::Reject, &Cameras::Compress),
    Each({0, kMost, 0, 9}, &M::AllCameras, &Cameras::Sensitivity),
    Each({0, 5, 0, 254}, &M::AllCameras, &Cameras::size),
    Each({6, kMost, 1, 255}, &M::AllCameras, &Cameras::size),
    Each({0, kMost, 0, 0}, &M::AllCameras, &Cameras::disable, &Cameras::covert, &Cameras::VidLoss),
    Each({0, kMost, 1, 1}, &M::AllCameras, &Cameras::color),
    Each({0, 5, 0, 7}, &M::AllAlarms, &Alarms::ExtAlmAction),
    Each({6, kMost, 0, 16}, &M::AllActions, &AlmAction::Preset0, &AlmAction::Preset3),
    Each({2, kMost, 0, 5}, &M::AllEvents, &clsEvents::PreEvDuration),
    Each({2, kMost, 0, 200}, &M::AllEvents, &clsEvents::PostEvDuration),
    Each({2, kMost, 0, 20}, &M::AllEvents, &clsEvents::Event_RRIndex, &clsEvents::TL_RRIndex,
         &clsEvents::Act_RRIndex),
    Each({0, kMost, 1, 16}, &M::AllTimedMacros, &clsTimedMacro::MacroNum),
    Each({6, kMost, 0, 0}, &M::AllRecTimers, &clsRecTimer::RTvalid),
    Of({0, kMost, 0, 1}, &M::Buzzer, &M::RecLock, &M::TransmitSpiTime, &M::LockKeyBoard,
       &M::ActIndicate, &M::AutoDisable, &M::Tel_options, &M::PresetMode, &M::PresetPGM,
       &M::PlaybackOld, &M::SVHS_MonB, &M::LumacastCDW, &M::ArchPortSelect),
    Of({0, kMost, 0, 2}, &M::AlarmMode, &M::AlmRecMode),
    Of({0, kMost, 0, 249}, &M::AlarmTimeOut),
    Of({0, kMost, 0, 12}, &M::MuxLang),
    Of({0, kMost, 1, 30}, &M::MultiDwell, &M::FullDwell, &M::PlayDwell),
    Of({0, 0, 0, 1}, &M::VCRType, &M::ExtCam_SwAct, &M::SwitchEdge, &M::FullScrResolution),
    Of({0, 0, 0, 2}, &M::VCR_Signal_Level, &M::PlaybackFormat),
    Of({0, 0, 0, 166}, &M::Normal_Rec_Index, &M::Alarm_Rec_Index),
    Of({1, 1, 0, 6}, &M::Normal_Rec_Index, &M::Alarm_Rec_Index),
    Of({2, kMost, 0, 5}, &M::Alarm_Rec_Index),
    Of({0, 0, 0, 1}, &M::PlayRecLnk),
    Of({2, kMost, 0, 99}, &M::PlayRecLnk),
    Of({1, 5, 0, 1}, &M::DvrRecMode),
    Of({6, kMost, 0, 2}, &M::DvrRecMode),
    Of({0, 5, 0, 3}, &M::BaudRate, &M::BaudRatePPC, &M::DvrArchiveOn),
    Of({6, kMost, 0, 6}, &M::BaudRate, &M::BaudRatePPC),
    Of({1, kMost, 0, 1}, &M::DvrArchAlm),
    Of({1, kMost, 0, 2}, &M::DvrArchiveSet),
    Of({6, kMost, 0, 1}, &M::DvrArchiveOn),
    In({0, kMost, 2000, 2059}, &M::TDInfo, &TimeDate::CurrentYear),
    In({0, kMost, 1, 12}, &M::TDInfo, &TimeDate::CurrentMonth, &TimeDate::CurrentDay),
    In({0, kMost, 0, 23}, &M::TDInfo, &TimeDate::CurrentHour),
    In({0, kMost, 0, 59}, &M::TDInfo, &TimeDate::CurrentMin, &TimeDate::CurrentSec),
    In({0, kMost, 0, 2}, &M::TDInfo, &TimeDate::DateFormat),
    In({6, kMost, 0, 6}, &M::TDInfo, &TimeDate::DaylightRegion),
    In({6, kMost, 13, 13}, &M::TDInfo, &TimeDate::TimeZoneIdx),
    In({6, kMost, 0, 16}, &M::MatrixInfo, &clsMatrix::GroupSetup),
};

/// The loader gives images to devices of other model codes as well.
TEST(FactorySettings, LieInTheEditorsRanges) {
  struct Device {
    int resource;
    std::vector<Byte> codes;
  };
  for (const auto& [resource, codes] :
       {Device{104, {0, 1}}, Device{301, {0, 1, 2, 5}}, Device{401, {6, 9, 14, 16, 18}}}) {
    for (const Byte code : codes) {
      SCOPED_TRACE(testing::Message() << "image " << resource << " as model code " << int{code});
      BlockImage image = LoadDefaultImage(resource);
      image.Block(kIdentityBlock)[1] = code;
      RecordEnvironment env;
      MuxData rec(env);
      DecodeImage(image, env, rec);
      for (const Range& range : kRanges) {
        if (range.first <= code && code <= range.last) range.check(rec, range);
      }
    }
  }
}

}  // namespace
}  // namespace quorvel
