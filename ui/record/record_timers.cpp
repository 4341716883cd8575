#include "ui/record/record_timers.h"

#include <algorithm>
#include <initializer_list>
#include <numeric>
#include <utility>

namespace quorvel {

namespace {

constexpr int kEmptyRow = -3;  // stands in all cells of a row without a timer
constexpr int kDaysOfMonth = 31;
constexpr int kMonday = 40;
constexpr int kDaysOfWeek = 7;
constexpr int kDaysTogether = 3;
constexpr int kMacros = 16;
constexpr int kDelete = 2;  // a status that OK carries out

/// A setting of a timer. While the timer is not valid, neither are its settings; to set one makes
/// it valid, and to empty one ends it.
SettingRef OfValidTimer(SettingRef setting) {
  return Joined(
      {std::move(setting), OfRecTimer(&clsRecTimer::RTvalid)},
      [](const std::vector<int>& values) { return values.at(1) == 0 ? kEmptyRow : values.at(0); },
      [](int value, std::vector<int>& values) {
        int& valid = values.at(1);
        if (value == kEmptyRow) {
          valid = 0;
          return;
        }
        values.at(0) = value;
        valid = 1;
      });
}

/// Takes the timers that are to be deleted out of the list; those behind them move up. Each entry
/// is set once, to what it is in the end, so that a block that ends up as it was is not listed.
void RemoveDeletedTimers(MuxData& record) {
  constexpr int kCleared = -1;
  std::vector<int> from(MuxData::kRecTimers);  // the entry that each place takes
  std::iota(from.begin(), from.end(), 0);
  const auto timer = [&](int entry) {
    return entry == kCleared ? nullptr : record.MRecTimer(entry);
  };
  const auto is_valid = [&](int entry) {
    const clsRecTimer* const it = timer(entry);
    return it != nullptr && it->RTvalid() != 0;
  };
  for (auto place = from.begin(); place != from.end();) {
    if (!is_valid(*place) || timer(*place)->RTstatus() != kDelete) {
      ++place;
      continue;
    }
    const auto behind_last = std::find_if(from.rbegin(), from.rend(), is_valid).base();
    std::move(place + 1, behind_last, place);
    *(behind_last - 1) = kCleared;
  }
  for (int place = 0; place < MuxData::kRecTimers; ++place) {
    const int entry = from.at(static_cast<std::size_t>(place));
    if (entry == kCleared) {
      record.MRecTimer(place)->Clear();
    } else if (entry != place) {
      record.MRecTimer(place)->Take(*record.MRecTimer(entry));
    }
  }
}

}  // namespace

RecordTimers::RecordTimers(Editor& editor, Grid& grid, const Choices& statuses, bool exists)
    : EditorPage(editor, exists), kept_(Id().IsTriplex()), grid_(grid) {
  for (Widget* const it : std::initializer_list<Widget*>{
           &lbRTDays, &cbRTDays, &lbRTstart, &dtRTstart, &lbRTstop, &dtRTstop, &lbRTmacrolnk,
           &cbRTmacrolnk, &lbRTstatus, &cbRTstatus}) {
    it->SetVisible(exists);
  }
  for (Widget* const it : std::initializer_list<Widget*>{&cbRTDays, &dtRTstart, &dtRTstop,
                                                         &cbRTmacrolnk, &cbRTstatus}) {
    it->SetEnabled(kept_);
  }
  if (exists) AddColumns(statuses);
}

void RecordTimers::AddColumns(const Choices& statuses) {
  grid_.SetSpokenName(Text(txt::kRecordTimer));
  FieldGroup& lines = Each(MuxData::kRecTimers);
  if (statuses.Has(kDelete)) lines.Then(RemoveDeletedTimers);
  timers_.emplace(*this, grid_, lines, Text(txt::kIndex), GridEditing::Release::kSelects);
  timers_->Editing().SetEmpties(GridEditing::Empties::kRows);
  timers_->Editing().SetRowsAreWhole();
  const auto time = [](auto hour, auto minute) {
    return OfValidTimer(TimeOf(OfRecTimer(hour), OfRecTimer(minute)));
  };
  const auto add = [this](int text) { return timers_->AddColumn(Text(text)); };
  timers_->Bind(add(txt::kDayColumn), cbRTDays, Days(),
                OfValidTimer(OfRecTimer(&clsRecTimer::RTdate)), RulesOfNew(1));
  timers_->Bind(add(txt::kStart), dtRTstart,
                time(&clsRecTimer::RTstart_hh, &clsRecTimer::RTstart_mm), RulesOfNew(0));
  timers_->Bind(add(txt::kStop), dtRTstop, time(&clsRecTimer::RTstop_hh, &clsRecTimer::RTstop_mm),
                RulesOfNew(0));
  Choices macros{{0, Words().cnstrNone}};
  macros.Add(Choices::Numbers(1, kMacros, 1));
  timers_->Bind(add(txt::kMacroColumn), cbRTmacrolnk, macros,
                OfValidTimer(OfRecTimer(&clsRecTimer::RTmacrolnk)), RulesOfNew(0));
  timers_->Bind(add(txt::kOnOrOff), cbRTstatus, statuses,
                OfValidTimer(OfRecTimer(&clsRecTimer::RTstatus)), RulesOfNew(statuses.ValueAt(0)));
}

/// The days of a month, then those of a week, then several of them together.
Choices RecordTimers::Days() const {
  Choices days = Choices::Numbers(1, kDaysOfMonth, 1);
  for (int day = 0; day < kDaysOfWeek; ++day) days.Add(kMonday + day, Words().ctDayOfWeek(day));
  for (int i = 0; i < kDaysTogether; ++i) {
    days.Add(kMonday + kDaysOfWeek + i, Words().ctDayWildcard(i));
  }
  return days;
}

ColumnRules RecordTimers::RulesOfNew(int value) {
  of_new_timer_.push_back(value);
  const int column = static_cast<int>(of_new_timer_.size());
  ColumnRules rules;
  rules.shows = ColumnRules::Reach::kInRow;
  rules.writes = ColumnRules::Reach::kInRow;
  rules.takes = [kept = kept_](int) { return kept; };
  rules.written = [this, column](int row) { FillRestOf(row, column); };
  if (kept_) rules.empty = kEmptyRow;
  return rules;
}

/// Something was chosen in an empty row: the whole of the new timer is in sight at once.
void RecordTimers::FillRestOf(int row, int written_column) {
  GridEditing& editing = timers_->Editing();
  if (editing.ValueAt(row, written_column) == kEmptyRow) return;
  bool filled = false;
  for (int column = 1; column < grid_.Columns(); ++column) {
    if (editing.ValueAt(row, column) != kEmptyRow) continue;
    editing.SetValue(row, column, of_new_timer_.at(static_cast<std::size_t>(column - 1)));
    filled = true;
  }
  if (filled && row == grid_.Row()) editing.ShowCell();
}

Layout RecordTimers::Controls() {
  return Column(Labelled(lbRTDays, cbRTDays), Labelled(lbRTstart, dtRTstart),
                Labelled(lbRTstop, dtRTstop), Labelled(lbRTmacrolnk, cbRTmacrolnk),
                Labelled(lbRTstatus, cbRTstatus), Stretch());
}

}  // namespace quorvel
