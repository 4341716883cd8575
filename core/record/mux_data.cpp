#include "core/record/mux_data.h"

#include <utility>

namespace quorvel {

// Settings find their owner by a distance of 16 bits.
static_assert(sizeof(MuxData) <= 0xFFFF);

namespace {

template <class Element, std::size_t N>
std::array<Element, N> MakeElements(RecordEnvironment& environment) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return std::array<Element, N>{Element(environment, static_cast<int>(I))...};
  }
  (std::make_index_sequence<N>());
}

}  // namespace

MuxData::MuxData(RecordEnvironment& environment)
    : SettingOwner(environment),
      TDInfo(environment),
      AlmEmailNotify(environment),
      MatrixInfo(environment),
      cameras_(MakeElements<Cameras, kMostCameras>(environment)),
      alarms_(MakeElements<Alarms, kMostCameras>(environment)),
      actions_(MakeElements<AlmAction, kMostCameras>(environment)),
      events_(MakeElements<clsEvents, kMostCameras>(environment)),
      sub_macros_(MakeElements<clsSubMacro, kMostCameras>(environment)),
      timed_macros_(MakeElements<clsTimedMacro, kTimedMacros>(environment)),
      rec_timers_(MakeElements<clsRecTimer, kRecTimers>(environment)) {}

clsSubMacro* MuxData::SubMacroInfo(int index) {
  clsSubMacro* const macro = PerCamera(sub_macros_, index);
  if (macro != nullptr) macro->SetSubMacroIdx(static_cast<Byte>(index));
  return macro;
}

clsTimedMacro* MuxData::TimeMacroInfo(int index) {
  if (index < 0 || index >= kTimedMacros) return nullptr;
  clsTimedMacro& macro = timed_macros_[static_cast<std::size_t>(index)];
  macro.SetMacroIdx(static_cast<Byte>(index));
  return &macro;
}

clsRecTimer* MuxData::MRecTimer(int index) {
  if (index < 0 || index >= kRecTimers) return nullptr;
  clsRecTimer& timer = rec_timers_[static_cast<std::size_t>(index)];
  timer.SetRTIdx(static_cast<Byte>(index));
  return &timer;
}

}  // namespace quorvel
