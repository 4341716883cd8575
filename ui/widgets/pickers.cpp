#include "quorvel/widgets/pickers.h"

#include <algorithm>

#include "ui/widgets/gestures.h"

namespace quorvel {

TimePicker::TimePicker(Dialog& dialog, std::string name)
    : Widget(dialog, WidgetKind::kTimePicker, std::move(name)) {}

std::string TimePicker::ValueText() const { return time_ ? TimeText(format_, *time_) : ""; }

void TimePicker::SetFormat(ClockFormat format) {
  Remember(Aspect::kState, format_);
  format_ = format;
  Redraw(Aspect::kState);
  Redraw(Aspect::kSelection);
}

void TimePicker::SetTime(const ClockTime& time) { Put(time, false); }
void TimePicker::Clear() { Put(std::nullopt, false); }

void TimePicker::Put(std::optional<ClockTime> time, bool edited) {
  Remember(Aspect::kSelection, time_, edited_);
  time_ = time;
  edited_ = edited;
  Redraw(Aspect::kSelection);
}

Answer TimePicker::Pick(ClockTime time) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (!IsTime(time)) return Answer::kNotAChoice;
  const Gesture gesture(*this, Gesture::Kind::kGoesOn);  // one digit after the other
  if (format_ == ClockFormat::kHoursMinutes) time.second = 0;
  time.minute = std::min(time.minute, last_minute_);
  Put(time, true);
  Raise(on_change);
  return refusal;
}

DatePicker::DatePicker(Dialog& dialog, std::string name)
    : Widget(dialog, WidgetKind::kDatePicker, std::move(name)) {}

std::string DatePicker::ValueText() const { return date_ ? DateText(*date_) : ""; }

void DatePicker::SetDate(const CalendarDate& date) { Put(date, false); }
void DatePicker::Clear() { Put(std::nullopt, false); }

void DatePicker::Put(std::optional<CalendarDate> date, bool edited) {
  Remember(Aspect::kSelection, date_, edited_);
  date_ = date;
  edited_ = edited;
  Redraw(Aspect::kSelection);
}

Answer DatePicker::Pick(const CalendarDate& date) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (!IsDate(date)) return Answer::kNotAChoice;
  const Gesture gesture(*this, Gesture::Kind::kGoesOn);  // one digit after the other
  Put(date, true);
  Raise(on_change);
  return refusal;
}

}  // namespace quorvel
