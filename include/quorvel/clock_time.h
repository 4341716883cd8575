#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

#include "quorvel/export.h"

namespace quorvel {

/// A time of day.
struct ClockTime {
  int hour = 0;
  int minute = 0;
  int second = 0;
  auto operator<=>(const ClockTime&) const = default;
};

/// A day of the calendar. Month and day count from 1.
struct CalendarDate {
  int year = 2000;
  int month = 1;
  int day = 1;
  auto operator<=>(const CalendarDate&) const = default;
};

/// A moment of the computer's clock, in its own time zone.
struct LocalTime {
  CalendarDate date;
  ClockTime time;
  auto operator<=>(const LocalTime&) const = default;
};

enum class ClockFormat {
  kHoursMinutes,         ///< HH:mm
  kHoursMinutesSeconds,  ///< HH:mm:ss
  kTwelveHours,          ///< hh:mm:ss tt, tt being AM or PM
};

/// True for a time that a clock shows, and for a date that a calendar has, of the years 1 to 9999.
[[nodiscard]] QUORVEL_API bool IsTime(const ClockTime& time);
[[nodiscard]] QUORVEL_API bool IsDate(const CalendarDate& date);
/// The date itself, or the nearest that a calendar has with its year and month: of a February 31
/// its last day. Those are brought into range before it.
[[nodiscard]] QUORVEL_API CalendarDate NearestDate(const CalendarDate& date);

/// A time in a format, as "07:45", "13:05:09" or "01:05:09 PM"; empty for what is no time.
[[nodiscard]] QUORVEL_API std::string TimeText(ClockFormat format, const ClockTime& time);
/// A date as "2024-02-29"; empty for what is no date.
[[nodiscard]] QUORVEL_API std::string DateText(const CalendarDate& date);

/// The time that a text in any of the formats tells, the hour of one digit or two; "7:45 PM" is
/// read as well. Nothing for other texts.
[[nodiscard]] QUORVEL_API std::optional<ClockTime> ReadTime(std::string_view text);
/// The date that a text such as "2024-02-29" tells. Nothing for other texts.
[[nodiscard]] QUORVEL_API std::optional<CalendarDate> ReadDate(std::string_view text);

}  // namespace quorvel
