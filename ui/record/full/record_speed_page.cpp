#include "ui/record/full/record_speed_page.h"

#include "ui/editing/number_texts.h"

namespace quorvel {

namespace {

constexpr int kFreeSpeeds = 167;
constexpr int kLines = 14;

struct Speeds {
  Choices fields, hours;
};

/// Speeds of the time-lapse modes of recorders; the last records at events only.
Speeds OfModes(const std::string& event) {
  return {Choices({"001", "009", "017", "025", "057", "321", event}),
          Choices({"003", "024", "048", "072", "168", "960", ""})};
}

/// Every other field, and six hours more for each step; a tape lasts three hours at least.
Speeds OfFreeRange() {
  Speeds speeds;
  for (int index = 0; index < kFreeSpeeds; ++index) {
    speeds.fields.Add(index, NumberText(index * 2 + 1, 3));
    speeds.hours.Add(index, NumberText(index == 0 ? 3 : index * 6, 3));
  }
  return speeds;
}

}  // namespace

RecordSpeedPage::RecordSpeedPage(Editor& editor, const RecordFeatures& features)
    : EditorPage(editor, features.speed_page) {
  if (!Exists()) return;
  BindSpeeds(features.speeds_of_modes);
  BindOptions(features);
}

void RecordSpeedPage::BindSpeeds(bool of_modes) {
  MSFlGd_RecSp.SetSpokenName(Text(txt::kRecordRate));
  const std::string names[] = {Text(txt::kNormalRecordSpeed), Text(txt::kAlarmRecordSpeed)};
  for (int line = 0; line < speeds_.Lines(); ++line) {
    MSFlGd_RecSp.SetCell(1 + line, 0, names[line]);
  }
  for (ListBox* const list : {&lstFields, &lstHours}) list->SetRows(kLines);
  const Speeds speeds = of_modes ? OfModes(Words().cnstrEvent) : OfFreeRange();
  const int fields = rows_.AddColumn(lbFields.Caption());
  rows_.BindPair(fields, lstFields, speeds.fields, rows_.AddColumn(lbHours.Caption()), lstHours,
                 speeds.hours,
                 OnePerLine({At(&MuxData::Normal_Rec_Index), At(&MuxData::Alarm_Rec_Index)}),
                 {.shows = ColumnRules::Reach::kInRow, .writes = ColumnRules::Reach::kInRow});
}

void RecordSpeedPage::BindOptions(const RecordFeatures& features) {
  if (features.record_mode) lbRecLock.SetCaption(Text(txt::kRecordMode));
  lbRecLock.SetVisible(features.record_lock);
  for (OptionButton& option : opt_RecLock) option.SetVisible(features.record_lock);
  const Choices modes{{0, Text(txt::kAutoOverwrite)}, {1, Text(txt::kUserConfirm)}};
  const SettingRef setting =
      features.record_mode ? At(&MuxData::DvrRecMode) : At(&MuxData::RecLock);
  FieldGroup& settings = Once();
  settings
      .Options(opt_RecLock, features.record_mode ? modes : OffOn(), setting.Otherwise(0),
               lbRecLock.Caption())
      .When(features.record_lock);
  settings.Then([this](MuxData& record) { ListBlocks(record); });
}

/// The record tracks neither the list nor the normal speed, so that all their blocks are listed.
void RecordSpeedPage::ListBlocks(MuxData& record) const {
  constexpr int kFirstOfList = 56;
  constexpr int kSpeeds = 59;
  constexpr int kLast = 60;
  const bool list = !Id().IsMultiplexer() || Id().VariantChar != 'A';
  for (int block = list ? kFirstOfList : kSpeeds; block <= kLast; ++block) {
    record.MarkModified(block);
  }
}

Layout RecordSpeedPage::Contents() {
  return Column(Row(MSFlGd_RecSp, Labelled(lbFields, lstFields), Labelled(lbHours, lstHours)),
                Row(lbRecLock, opt_RecLock, Stretch()), Stretch());
}

}  // namespace quorvel
