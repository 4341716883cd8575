#include "muxhost/going_along.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace quorvel::muxhost {

namespace {

constexpr std::uint8_t kClockBlock = 61;

int ToNumber(const std::string& text) {
  int number = -1;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

bool Brings(const MainMenuCtrl& control, bool all, std::uint8_t block) {
  if (all) return true;
  const auto listed = control.ModifiedBlocks();
  return std::find(listed.begin(), listed.end(), block) != listed.end();
}

constexpr std::string_view kClockSettings = "TDInfo.Current";

/// What of the clock was set since the configuration came.
std::vector<SettingDifference> EditsOfClock(const MainMenuCtrl& control) {
  auto edits = control.DifferencesFrom(control.Image()).value_or(std::vector<SettingDifference>());
  std::erase_if(edits, [](const auto& it) { return !it.name.starts_with(kClockSettings); });
  return edits;
}

/// The clock of the configuration, without what was set since it came unless `edited`. Nothing for
/// one that no calendar has.
std::optional<LocalTime> ClockOf(const MainMenuCtrl& control,
                                 const std::vector<SettingDifference>& edits, bool edited) {
  LocalTime clock;
  const std::array<std::pair<std::string_view, int*>, 6> parts = {{{"Year", &clock.date.year},
                                                                   {"Month", &clock.date.month},
                                                                   {"Day", &clock.date.day},
                                                                   {"Hour", &clock.time.hour},
                                                                   {"Min", &clock.time.minute},
                                                                   {"Sec", &clock.time.second}}};
  const auto take = [&](const std::string& setting, const std::string& value) {
    for (const auto& [name, number] : parts) {
      if (setting.substr(kClockSettings.size()) == name) *number = ToNumber(value);
    }
  };
  for (const SettingLine& line : control.Settings(std::string(kClockSettings) + "*")) {
    take(line.name, line.value);
  }
  if (!edited) {
    for (const SettingDifference& it : edits) take(it.name, it.other);
  }
  if (!IsDate(clock.date) || !IsTime(clock.time)) return std::nullopt;
  return clock;
}

void TellClock(const MainMenuCtrl& control, const LocalTime& now, GoingAlong& along) {
  const bool listed = Brings(control, false, kClockBlock);
  const auto edits = EditsOfClock(control);
  along.clock = ClockOf(control, edits, listed);
  if (listed && control.UsePcTime() && along.clock) {
    // The time is taken when the block is built, the date was taken with the user's choice.
    along.clock->time = now.time;
    along.clock_goes = along.clock->date != now.date;
  } else {
    along.clock_goes = !listed || edits.empty();
  }
}

/// Some models list the four fastest rates of a port, the others begin with the slowest.
std::string RateInWords(const std::string& code, bool fast, const Speech& say) {
  constexpr std::array kRates = {"1200", "2400", "4800", "9600", "19200", "38400", "57600"};
  constexpr int kFastest = 3;
  const int place = ToNumber(code) + (fast ? kFastest : 0);
  if (place < 0 || place >= static_cast<int>(kRates.size())) {
    return Fill(say("code %1"), {code});
  }
  return Fill(say("%1 baud"), {kRates.at(static_cast<std::size_t>(place))});
}

/// Nothing for another setting than those of the ports.
std::optional<std::string> PortInWords(const SettingDifference& change, int model,
                                       const Speech& say) {
  const auto& [name, value, other, blocks] = change;
  if (name == "NetworkAddr") {
    return Fill(say("the network address from %1 to %2"), {other, value});
  }
  const bool ppc = name == "BaudRatePPC";
  if (!ppc && name != "BaudRate") return std::nullopt;
  const bool fast = ppc && model < kFirstTriplexModel;
  const std::string port = model == 0 ? say("the RS232 port from %1 to %2")
                           : ppc      ? say("port 1 from %1 to %2")
                                      : say("port 2 from %1 to %2");
  return Fill(port, {RateInWords(other, fast, say), RateInWords(value, fast, say)});
}

/// From two of a unit on it counts in that unit.
std::string DurationInWords(std::int64_t seconds, const Speech& say) {
  const std::array<std::pair<std::int64_t, std::string>, 5> units = {
      {{365 * 86400, say("%1 years")},
       {30 * 86400, say("%1 months")},
       {86400, say("%1 days")},
       {3600, say("%1 hours")},
       {60, say("%1 minutes")}}};
  for (const auto& [length, unit] : units) {
    if (seconds >= 2 * length) return Fill(unit, {std::to_string(seconds / length)});
  }
  return Fill(seconds == 1 ? say("%1 second") : say("%1 seconds"), {std::to_string(seconds)});
}

std::int64_t Seconds(const LocalTime& at) {
  const std::chrono::year_month_day date{std::chrono::year(at.date.year),
                                         std::chrono::month(static_cast<unsigned>(at.date.month)),
                                         std::chrono::day(static_cast<unsigned>(at.date.day))};
  const std::int64_t days = std::chrono::sys_days(date).time_since_epoch().count();
  return ((days * 24 + at.time.hour) * 60 + at.time.minute) * 60 + at.time.second;
}

}  // namespace

GoingAlong WhatGoesAlong(HostSession& session, bool all, bool macros, const LocalTime& now,
                         const Speech& say) {
  GoingAlong along;
  const MainMenuCtrl& control = session.Control();
  const int model = session.Device().ModelCode();
  // The array of the combined exchange brings all blocks.
  const bool whole_array = session.Device().IsCombined() && (all || macros);
  all = all || whole_array;
  const bool takes_clock = model < kFirstTriplexModel || (whole_array && control.UsePcTime());
  const bool has_clock = control.Settings(std::string(kClockSettings) + "Year").size() == 1;
  if (takes_clock && has_clock && Brings(control, all, kClockBlock)) {
    TellClock(control, now, along);
  }
  const auto changes = control.DifferencesFrom(session.Device().Bytes());
  if (!changes) return along;
  for (const SettingDifference& change : *changes) {
    auto words = PortInWords(change, model, say);
    const bool goes = std::any_of(change.blocks.begin(), change.blocks.end(),
                                  [&](std::uint8_t block) { return Brings(control, all, block); });
    if (words && goes) along.ports.push_back(std::move(*words));
  }
  return along;
}

std::string ClockInWords(const std::optional<LocalTime>& clock, const LocalTime& now,
                         const Speech& say) {
  if (!clock) {
    return say("The device's clock goes along: a time that no clock or calendar has.");
  }
  const std::int64_t behind = Seconds(now) - Seconds(*clock);
  const std::string sentence =
      behind == 0  ? say("The device's clock goes along: %1, as that of this computer.")
      : behind < 0 ? say("The device's clock goes along: %1, %2 ahead of this computer.")
                   : say("The device's clock goes along: %1, %2 behind this computer.");
  const std::string time =
      DateText(clock->date) + " " + TimeText(ClockFormat::kHoursMinutesSeconds, clock->time);
  return Fill(sentence, {time, DurationInWords(std::abs(behind), say)});
}

std::string PortsInWords(const std::vector<std::string>& ports, const Speech& say) {
  std::string words;
  for (const std::string& port : ports) words += (&port == &ports.front() ? "" : ", ") + port;
  return Fill(say("Ports change that the link may use: %1."), {words});
}

}  // namespace quorvel::muxhost
