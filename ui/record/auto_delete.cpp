#include "ui/record/auto_delete.h"

namespace quorvel {

namespace {
constexpr int kMostDays = 99;
constexpr int kWeek = 7;
constexpr int kFirmwareOfSingleDays = 506;
}  // namespace

Choices AutoDeleteChoices(int stored, int firmware, const std::string& off,
                          const std::string& days) {
  const bool from_a_week_on = (stored == 0 || stored >= kWeek) && firmware < kFirmwareOfSingleDays;
  Choices choices{{0, off}};
  for (int day = from_a_week_on ? kWeek : 1; day <= kMostDays; ++day) {
    // English has a word of its own for one; no other text does.
    const bool one = day == 1 && days == " days";
    choices.Add(day, std::to_string(day) + (one ? " day" : days));
  }
  return choices;
}

}  // namespace quorvel
