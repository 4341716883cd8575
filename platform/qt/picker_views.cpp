#include "platform/qt/picker_views.h"

#include <QDate>

#include "platform/qt/date_box.h"

namespace quorvel::qt {

namespace {

constexpr int kHoursEnd = 2;  // "13:05:09 PM": places where parts end
constexpr int kMinutesEnd = 5;
constexpr int kSecondsEnd = 8;
constexpr int kYearEnd = 4;  // "2024-02-29"
constexpr int kMonthEnd = 7;

/// Times go round at midnight, each part on its own.
ClockTime Stepped(ClockTime time, int place, int steps, int last_minute) {
  const auto turned = [steps](int value, int count) {
    return ((value + steps) % count + count) % count;
  };
  if (place <= kHoursEnd) {
    time.hour = turned(time.hour, 24);
  } else if (place <= kMinutesEnd) {
    time.minute = turned(time.minute, last_minute + 1);
  } else if (place <= kSecondsEnd) {
    time.second = turned(time.second, 60);
  } else {
    time.hour = (time.hour + 12) % 24;
  }
  return time;
}

/// A day that the new month lacks becomes its last.
CalendarDate Stepped(const CalendarDate& date, int place, int steps) {
  const QDate from(date.year, date.month, date.day);
  const QDate to = place <= kYearEnd    ? from.addYears(steps)
                   : place <= kMonthEnd ? from.addMonths(steps)
                                        : from.addDays(steps);
  return {to.year(), to.month(), to.day()};
}

class TimePickerView : public ViewOf<TimePicker, PartsBox> {
 public:
  TimePickerView(VerbsUnderWay& verbs, TimePicker& model, QWidget& parent)
      : ViewOf(verbs, model, new PartsBox(parent)) {
    GetBody()->on_typed = [this](const QString& text) {
      const auto time = ReadTime(text.toStdString());
      Act([&time](TimePicker& picker) {
        if (time) picker.Pick(*time);
      });
    };
    GetBody()->on_step = [this](int place, int steps) {
      Act([place, steps](TimePicker& picker) {
        const bool blank = picker.ValueText().empty();
        picker.Pick(blank ? ClockTime{}
                          : Stepped(*picker.Time(), place, steps, picker.LastMinute()));
      });
    };
    DrawAll();
  }

 private:
  void Draw(Aspect what) override {
    if (what == Aspect::kState) {
      GetBody()->FitWidth(Shown(TimeText(GetModel()->Format(), ClockTime{22, 0, 0})));
    }
    GetBody()->ShowText(Shown(GetModel()->ValueText()));
  }
};

class DatePickerView : public ViewOf<DatePicker, DateBox> {
 public:
  DatePickerView(VerbsUnderWay& verbs, DatePicker& model, QWidget& parent)
      : ViewOf(verbs, model, new DateBox(parent)) {
    GetBody()->on_typed = [this](const QString& text) {
      const auto date = ReadDate(text.toStdString());
      Act([&date](DatePicker& picker) {
        if (date) picker.Pick(*date);
      });
    };
    GetBody()->on_pick = [this](const QDate& date) {
      Act([&date](DatePicker& picker) { picker.Pick({date.year(), date.month(), date.day()}); });
    };
    GetBody()->on_step = [this](int place, int steps) {
      Act([place, steps](DatePicker& picker) {
        const bool blank = picker.ValueText().empty();
        picker.Pick(blank ? CalendarDate{} : Stepped(*picker.Date(), place, steps));
      });
    };
    GetBody()->FitWidth("2000-00-00");
    DrawAll();
  }

 private:
  void Draw(Aspect /*what*/) override { GetBody()->ShowText(Shown(GetModel()->ValueText())); }
};

}  // namespace

std::unique_ptr<ControlView> MakeTimePicker(VerbsUnderWay& verbs, TimePicker& model,
                                            QWidget& parent) {
  return std::make_unique<TimePickerView>(verbs, model, parent);
}

std::unique_ptr<ControlView> MakeDatePicker(VerbsUnderWay& verbs, DatePicker& model,
                                            QWidget& parent) {
  return std::make_unique<DatePickerView>(verbs, model, parent);
}

}  // namespace quorvel::qt
