#include "ui/record/macro/timed_macro_page.h"

namespace quorvel {

namespace {

/// The device counts minutes to 58: a start at 59 it does not take.
constexpr int kLastMinute = 58;
constexpr int kDaysOfWeek = 7;

}  // namespace

TimedMacroPage::TimedMacroPage(Editor& editor) : EditorPage(editor) {
  MSFG_TimeMacro.SetSpokenName(Text(txt::kTimedMacroStart));
  MSFG_TimeMacro.SetAlign(Grid::Align::kCentre);
  DTPicker1.SetLastMinute(kLastMinute);
  DTPicker1.SetTime({});

  const int never = 0;
  Choices days{{never, Words().cnstrNone}};
  for (int day = 0; day < kDaysOfWeek; ++day) days.Add(day + 1, Words().ctDayOfWeek(day));
  days.Add(days.Count(), "**");  // every day
  starts_.Column(Label1.Caption(), lstDay, days, OfTimedMacro(&clsTimedMacro::Day),
                 {.empty = never});
  const int hour = starts_.AddColumn(Text(txt::kHour));
  const int minute = starts_.AddColumn(Text(txt::kMinute));
  starts_.BindPair(hour, minute, DTPicker1, OfTimedMacro(&clsTimedMacro::Hour),
                   OfTimedMacro(&clsTimedMacro::Minute));
  Choices macros = Choices::Numbers(1, Id().MaxCam, 1);
  macros.OthersRead([](int number) { return std::to_string(number); });
  starts_.Column(Label3.Caption(), lstMacro, macros, OfTimedMacro(&clsTimedMacro::MacroNum),
                 {.writes = ColumnRules::Reach::kInRow});
}

Layout TimedMacroPage::Contents() {
  return Row(MSFG_TimeMacro,
             Column(Labelled(Label1, lstDay), Labelled(Label2, DTPicker1), Stretch()),
             Labelled(Label3, lstMacro));
}

}  // namespace quorvel
