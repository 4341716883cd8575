#include "quorvel/clock_time.h"

#include <algorithm>
#include <chrono>

namespace quorvel {

namespace {

constexpr int kNoon = 12;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string Padded(int number, std::size_t digits) {
  std::string text = std::to_string(number);
  return std::string(digits - std::min(digits, text.size()), '0') + text;
}

/// Takes a number of `least` to `most` digits off the front of a text.
std::optional<int> TakeNumber(std::string_view& text, std::size_t least, std::size_t most) {
  std::size_t digits = 0;
  int number = 0;
  for (; digits < std::min(most, text.size()) && IsDigit(text[digits]); ++digits) {
    number = number * 10 + (text[digits] - '0');
  }
  if (digits < least) return std::nullopt;
  text.remove_prefix(digits);
  return number;
}

bool Take(std::string_view& text, std::string_view start) {
  if (!text.starts_with(start)) return false;
  text.remove_prefix(start.size());
  return true;
}

/// Takes a mark and the two digits after it.
std::optional<int> TakeTwoDigitsAfter(std::string_view mark, std::string_view& text) {
  return Take(text, mark) ? TakeNumber(text, 2, 2) : std::nullopt;
}

}  // namespace

bool IsTime(const ClockTime& time) {
  const auto within = [](int number, int end) { return number >= 0 && number < end; };
  return within(time.hour, 24) && within(time.minute, 60) && within(time.second, 60);
}

bool IsDate(const CalendarDate& date) {
  if (date.year < 1 || date.year > 9999 || date.month < 1 || date.day < 1 || date.day > 31) {
    return false;
  }
  return date.month <= 12 &&
         std::chrono::year_month_day(std::chrono::year(date.year),
                                     std::chrono::month(static_cast<unsigned>(date.month)),
                                     std::chrono::day(static_cast<unsigned>(date.day)))
             .ok();
}

CalendarDate NearestDate(const CalendarDate& date) {
  CalendarDate nearest{std::clamp(date.year, 1, 9999), std::clamp(date.month, 1, 12),
                       std::clamp(date.day, 1, 31)};
  while (!IsDate(nearest)) --nearest.day;
  return nearest;
}

std::string TimeText(ClockFormat format, const ClockTime& time) {
  if (!IsTime(time)) return {};
  const bool twelve = format == ClockFormat::kTwelveHours;
  const int hour = twelve ? (time.hour + kNoon - 1) % kNoon + 1 : time.hour;
  std::string text = Padded(hour, 2) + ":" + Padded(time.minute, 2);
  if (format != ClockFormat::kHoursMinutes) text += ":" + Padded(time.second, 2);
  if (twelve) text += time.hour < kNoon ? " AM" : " PM";
  return text;
}

std::string DateText(const CalendarDate& date) {
  if (!IsDate(date)) return {};
  return Padded(date.year, 4) + "-" + Padded(date.month, 2) + "-" + Padded(date.day, 2);
}

std::optional<ClockTime> ReadTime(std::string_view text) {
  const auto hour = TakeNumber(text, 1, 2);
  const auto minute = TakeTwoDigitsAfter(":", text);
  const auto second = text.starts_with(':') ? TakeTwoDigitsAfter(":", text) : 0;
  if (!hour || !minute || !second) return std::nullopt;
  ClockTime time{*hour, *minute, *second};
  const bool pm = Take(text, " PM");
  if (pm || Take(text, " AM")) {
    if (*hour < 1 || *hour > kNoon) return std::nullopt;
    time.hour = *hour % kNoon + (pm ? kNoon : 0);
  }
  return text.empty() && IsTime(time) ? std::optional(time) : std::nullopt;
}

std::optional<CalendarDate> ReadDate(std::string_view text) {
  const auto year = TakeNumber(text, 4, 4);
  const auto month = TakeTwoDigitsAfter("-", text);
  const auto day = TakeTwoDigitsAfter("-", text);
  if (!year || !month || !day || !text.empty()) return std::nullopt;
  const CalendarDate date{*year, *month, *day};
  return IsDate(date) ? std::optional(date) : std::nullopt;
}

}  // namespace quorvel
