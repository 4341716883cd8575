#pragma once

#include <optional>
#include <string>

#include "quorvel/clock_time.h"
#include "quorvel/export.h"
#include "quorvel/widgets/widget.h"

namespace quorvel {

/// A box that holds a time of day, or is blank.
class QUORVEL_API TimePicker : public Widget {
 public:
  TimePicker(Dialog& dialog, std::string name);
  /// The time, as set; nothing when blank.
  [[nodiscard]] const std::optional<ClockTime>& Time() const { return time_; }
  [[nodiscard]] ClockFormat Format() const { return format_; }
  /// True once the user has picked a time, be it the one that was set.
  [[nodiscard]] bool Edited() const { return edited_; }
  /// The time in the picker's format; empty when it is drawn blank.
  [[nodiscard]] std::string ValueText() const override;

  void SetFormat(ClockFormat format);
  /// The last minute of an hour that can be picked; 59 unless set otherwise.
  [[nodiscard]] int LastMinute() const { return last_minute_; }
  void SetLastMinute(int minute) { last_minute_ = minute; }
  /// Sets the time; what no clock shows is kept and drawn blank. The picker counts as not edited.
  void SetTime(const ClockTime& time);
  /// Makes the picker blank.
  void Clear();

  /// Picks a time, also the present one. Where the format shows no seconds they become 0, and a
  /// minute behind the last becomes the last. What no clock shows is kNotAChoice.
  Answer Pick(ClockTime time);
  Handler on_change;
  void RaiseChosen() override { Raise(on_change); }

 private:
  void Put(std::optional<ClockTime> time, bool edited);

  std::optional<ClockTime> time_;
  ClockFormat format_ = ClockFormat::kHoursMinutes;
  int last_minute_ = 59;
  bool edited_ = false;
};

/// A box that holds a date, or is blank.
class QUORVEL_API DatePicker : public Widget {
 public:
  DatePicker(Dialog& dialog, std::string name);
  /// The date, as set; nothing when blank.
  [[nodiscard]] const std::optional<CalendarDate>& Date() const { return date_; }
  /// True once the user has picked a date, be it the one that was set.
  [[nodiscard]] bool Edited() const { return edited_; }
  /// The date as "2024-02-29"; empty when it is drawn blank.
  [[nodiscard]] std::string ValueText() const override;

  /// Sets the date; what no calendar has is kept and drawn blank. The picker counts as not edited.
  void SetDate(const CalendarDate& date);
  /// Makes the picker blank.
  void Clear();

  /// Picks a date, also the present one. What no calendar has is kNotAChoice.
  Answer Pick(const CalendarDate& date);
  Handler on_change;
  void RaiseChosen() override { Raise(on_change); }

 private:
  void Put(std::optional<CalendarDate> date, bool edited);

  std::optional<CalendarDate> date_;
  bool edited_ = false;
};

}  // namespace quorvel
