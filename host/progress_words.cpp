#include "host/progress_words.h"

#include "quorvel/transfer.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {

constexpr int kMinute = 60;
constexpr int kHour = 60 * kMinute;
constexpr int kDay = 24 * kHour;

int SecondOfDay(const ClockTime& time) {
  return time.hour * kHour + time.minute * kMinute + time.second;
}

/// A text with a number where it has "{0}", and another where it has "{1}".
std::string With(std::string text, int first, int second = 0) {
  const auto put = [&text](const char* place, int number) {
    const auto at = text.find(place);
    if (at != std::string::npos) text.replace(at, 3, std::to_string(number));
  };
  put("{0}", first);
  put("{1}", second);
  return text;
}

}  // namespace

std::optional<int> TransferPace::SecondsLeft(const LocalTime& now, int done, int total) const {
  constexpr int kSooner = 2;  // seconds after which it can be told
  const int gone = (SecondOfDay(now.time) - SecondOfDay(begun_.time) + kDay) % kDay;
  if (done <= 0 || done >= total || gone < kSooner) return std::nullopt;
  return (gone * (total - done) + done - 1) / done;
}

ProgressWords::ProgressWords(const Context& context)
    : platform_(context.platform),
      done_of_(context.GetText(kTextDoneOf)),
      seconds_left_(context.GetText(kTextSecondsLeft)) {
  Begin();
}

void ProgressWords::Begin() { pace_.Begin(platform_.Now()); }

std::string ProgressWords::Of(int done, int total) const {
  if (total <= 1 || done <= 0 || done > total) return {};
  const std::string words = With(done_of_, done, total);
  const auto left = pace_.SecondsLeft(platform_.Now(), done, total);
  return left ? words + ", " + With(seconds_left_, *left) : words;
}

}  // namespace quorvel
