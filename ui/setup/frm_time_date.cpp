#include "ui/setup/frm_time_date.h"

#include <algorithm>

#include "ui/context.h"
#include "ui/editing/octet_boxes.h"

namespace quorvel {

namespace {

constexpr int kServerBlock = 217;
constexpr int kFirstModelWithoutMaster = 8;
// A year is stored as two digits.
constexpr int kFirstYear = 1960;
constexpr int kLastYear = 2059;

Choices TimeZones() {
  return Choices({"-12:00", "-11:00", "-10:00", "-09:00", "-08:00", "-07:00", "-06:00", "-05:00",
                  "-04:00", "-3:30",  "-03:00", "-02:00", "-01:00", "00:00",  "01:00",  "02:00",
                  "03:00",  "3:30",   "4:00",   "4:30",   "5:00",   "5:30",   "6:00",   "6:30",
                  "7:00",   "8:00",   "9:00",   "9:30",   "10:00",  "11:00",  "12:00"});
}

/// A setting of the clock's record.
template <class S>
auto Clock(S TimeDate::*setting, int entry = kEntryOfLine) {
  return Of(&MuxData::TDInfo, setting, entry);
}

}  // namespace

frm_TimeDate::frm_TimeDate(Context& context)
    : Editor(context, "frm_TimeDate", txt::kTimeAndDate, {CommitTimeDate}) {
  context.device.UsePcTime = false;
  FieldGroup& settings = Once();
  date_ = &settings.Pick(Calendar, Clock(&TimeDate::CurrentDay), Clock(&TimeDate::CurrentMonth),
                         Clock(&TimeDate::CurrentYear));
  BindDisplays(settings);
  BindRegion(settings);
  BindServers(settings);
  BindFormats(settings);
  time_ = &settings.Pick(DTPicker1, Clock(&TimeDate::CurrentHour), Clock(&TimeDate::CurrentMin),
                         Clock(&TimeDate::CurrentSec));
  const bool master = Id().ModelCode < kFirstModelWithoutMaster;
  settings.Options(optYesNo, NoYes(), At(&MuxData::TransmitSpiTime).Otherwise(0), Label1.Caption())
      .WrittenWhen(master);
  optYesNo.SetEnabled(master);
  FollowPickers();
  Arrange();
  Open(TDSavePage, TDCancel);
}

void frm_TimeDate::BindDisplays(FieldGroup& settings) {
  const bool matrix = Id().IsTriplexMatrix();
  settings.Check(TD_MonA, Clock(&TimeDate::TDDisplay, 0));
  settings.Check(TD_MonB, Clock(&TimeDate::TDDisplay, 1));
  for (int i = 0; i < kAuxMonitors; ++i) {
    chkAuxMon(i).SetCaption(Objects().objstMon + " " + static_cast<char>('C' + i));
    settings.Check(chkAuxMon(i), Clock(&TimeDate::TDDisplay, 2 + i)).When(matrix);
  }
  chkAuxMon.SetEnabled(matrix);
}

void frm_TimeDate::BindRegion(FieldGroup& settings) {
  const bool regional = Id().IsTriplex();
  settings
      .List(cbRegional,
            Choices({Words().cnstrOFF, Text(txt::kUsa), Text(txt::kEur), Text(txt::kAus),
                     Text(txt::kNz), Text(txt::kRus), "US2"}),
            Clock(&TimeDate::DaylightRegion))
      .When(regional);
  settings.List(cbTimeZone, TimeZones(), Clock(&TimeDate::TimeZoneIdx)).When(regional);
  Frame5.SetVisible(regional);
}

void frm_TimeDate::BindServers(FieldGroup& settings) {
  const bool servers =
      Id().IsTriplex() && !Id().Model4L && Ctx().device.BlkImage.BlkCountOrZero() >= kServerBlock;
  settings
      .Options(optNTPUpdate,
               Choices({Text(txt::kOncePerHour), Text(txt::kTwicePerDay), Text(txt::kOncePerDay),
                        Text(txt::kDisableWord)}),
               Clock(&TimeDate::NTPUpdate), Label4.Caption())
      .When(servers);
  settings.Octets(txNTPBkServer, Clock(&TimeDate::NTPBkupServer)).When(servers);
  settings.Octets(txNTPPrServer, Clock(&TimeDate::NTPPrimServer)).When(servers);
  txNTPPrServer.SetSpokenNames(Frame7.Caption());
  txNTPBkServer.SetSpokenNames(Frame8.Caption());
  Frame6.SetVisible(servers);
}

void frm_TimeDate::BindFormats(FieldGroup& settings) {
  settings.Options(TimeFormat, {{1, Words().cnstr24h}, {0, Words().cnstr12H}},
                   Clock(&TimeDate::TimeFormat));
  settings.Options(DateFormat, Choices({Words().cnstrMM, Words().cnstrDD, Words().cnstrYY}),
                   Clock(&TimeDate::DateFormat));
  for (OptionButton& option : TimeFormat) option.on_click = [this] { ShowTimeFormat(); };
  AfterFill([this] { ShowTimeFormat(); });
}

void frm_TimeDate::FollowPickers() {
  Calendar.SetSpokenName(Text(kTextDate));
  DTPicker1.SetSpokenName(Text(txt::kTime));
  Calendar.on_change = [this] { KeepDateInReach(); };
  DTPicker1.on_change = [this] { chkPCTD.SetChecked(false); };
  chkPCTD.on_click = [this] { UsePcClock(); };
  Counts(chkPCTD);
  // A date or time that is picked again is taken by the device, too.
  Counts([this] { return (Calendar.Edited() ? 1 : 0) + (DTPicker1.Edited() ? 2 : 0); });
}

void frm_TimeDate::ShowTimeFormat() {
  DTPicker1.SetFormat(TimeFormat(0).Selected() ? ClockFormat::kHoursMinutesSeconds
                                               : ClockFormat::kTwelveHours);
}

/// What the device would take for a year of another century becomes the nearest date that it keeps.
void frm_TimeDate::KeepDateInReach() {
  chkPCTD.SetChecked(false);
  CalendarDate date = Calendar.Date().value_or(CalendarDate());
  if (date.year >= kFirstYear && date.year <= kLastYear) return;
  date.year = std::clamp(date.year, kFirstYear, kLastYear);
  Calendar.Pick(NearestDate(date));
}

/// The computer's date and time are as if picked; without the tick the device's own are back.
void frm_TimeDate::UsePcClock() {
  if (!chkPCTD.Checked()) {
    date_->PutBack(0);
    time_->PutBack(0);
    return;
  }
  const LocalTime now = Ctx().platform.Now();
  Calendar.Pick(now.date);
  DTPicker1.Pick(now.time);
  chkPCTD.SetChecked(true);  // a pick takes the tick away
}

void frm_TimeDate::WriteRest(MuxData& record) {
  if (chkPCTD.Checked()) return Ctx().device.TakePcTime();
  if (!Calendar.Edited() && !DTPicker1.Edited()) return;
  Ctx().device.UsePcTime = false;
  if (Id().IsTriplex()) record.PlayDwell(0);  // lets the device take the clock
}

void frm_TimeDate::Arrange() {
  SetLayout(Column(
      Row(Column(Framed(Frame1, Column(TD_MonA, TD_MonB, chkAuxMon)), Stretch()),
          Column(Framed(Frame2, Column(TimeFormat)), Framed(Frame3, Column(DateFormat)),
                 Framed(Frame4, Column(Label1, Row(optYesNo))), Stretch()),
          Column(chkPCTD, Calendar, DTPicker1,
                 Framed(Frame5, Column(Labelled(Label2, cbRegional), Labelled(Label3, cbTimeZone))),
                 Stretch()),
          Column(
              Framed(Frame6, Column(Framed(Frame7, Dotted(txNTPPrServer, lbTxdotIP)),
                                    Framed(Frame8, Dotted(txNTPBkServer, lbTxdotIP, kOctets - 1)),
                                    Label4, optNTPUpdate)),
              Stretch()),
          Stretch()),
      Row(Stretch(), TDSavePage, TDCancel)));
}

}  // namespace quorvel
