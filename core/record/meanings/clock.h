#pragma once

#include "core/record/meanings/words.h"

namespace quorvel {

/// A day of any month.
struct DayOfMonth : Within<1, 31> {};
struct MonthOfYear : Within<1, 12> {};
/// Of a year the device keeps two digits.
struct ClockYear : Within<1960, 2059> {};
struct HourOfDay : Within<0, 23> {};
struct MinuteOrSecond : Within<0, 59> {};
struct ClockHours : Words<"12 HOUR", "24 HOUR"> {};
struct DateOrder : Words<"MM/DD/YY", "DD/MM/YY", "YY/MM/DD"> {};
struct ServerInterval : Words<"Once per hour", "Twice per day", "Once per day", "Disable"> {};
struct SummerTime : Words<"OFF", "USA", "EUR", "AUS", "NZ", "RUS", "US2"> {};
struct TimeZone : Words<"-12:00", "-11:00", "-10:00", "-09:00", "-08:00", "-07:00", "-06:00",
                        "-05:00", "-04:00", "-3:30", "-03:00", "-02:00", "-01:00", "00:00", "01:00",
                        "02:00", "03:00", "3:30", "4:00", "4:30", "5:00", "5:30", "6:00", "6:30",
                        "7:00", "8:00", "9:00", "9:30", "10:00", "11:00", "12:00"> {};

}  // namespace quorvel
