#include "ui/record/full/event_settings_page.h"

#include <utility>

namespace quorvel {

namespace {

constexpr int kTimeLapse = 0;
constexpr int kEvent = 1;
constexpr int kLongestPreEvent = 5;     // seconds
constexpr int kLongestPostEvent = 200;  // seconds
constexpr int kAssociations = 3;

// Stand in the cells of rates that are not to be seen.
constexpr int kDisabled = -3;
constexpr int kDoesNotApply = -4;

bool Always(int /*type*/) { return true; }
bool HasEvents(int type) { return type != kTimeLapse; }
bool HasTimeLapse(int type) { return type != kEvent; }

}  // namespace

EventSettingsPage::EventSettingsPage(Editor& editor, const RecordFeatures& features,
                                     const RateChoices& rates, const RateToStored& rate_to_stored)
    : EditorPage(editor, features.recorder_pages) {
  MSFG_Events.SetSpokenName(Text(txt::kEventSettings));
  if (!Exists()) return;
  BindTypes();
  BindDurations();
  BindRates(rates.of_cameras, rate_to_stored);
  BindAssociations(features.associations);
}

ColumnRules EventSettingsPage::OfRow(std::function<bool(int)> takes) {
  ColumnRules rules;
  rules.shows = ColumnRules::Reach::kInRow;
  rules.writes = ColumnRules::Reach::kInRow;
  rules.takes = std::move(takes);
  // A row that took nothing shows what it keeps.
  rules.chosen = [this] { cameras_.Editing().ShowCell(); };
  return rules;
}

void EventSettingsPage::BindTypes() {
  ColumnRules rules = OfRow([this](int row) { return CameraRecords(Ctx(), LineOf(row)); });
  rules.written = [this](int row) { ShowRatesOf(row); };
  cameras_.NameByTitles();
  cameras_.Column(lbEvType.Caption(), lstEvType,
                  Choices({Words().cnstrTL, Words().cnstrEvent, Words().cnstrEvTL}),
                  OfEvents(&clsEvents::EType), std::move(rules));
}

void EventSettingsPage::BindDurations() {
  const auto takes = [this](int row) {
    return CameraRecords(Ctx(), LineOf(row)) && HasEvents(cameras_.Editing().ValueAt(row, kType));
  };
  slPreEvDur.SetLabel(lbPreEvDur);
  slPostEvDur.SetLabel(lbPostEvDur);
  slPreEvDur.SetRange(0, kLongestPreEvent);
  slPostEvDur.SetRange(0, kLongestPostEvent);
  cameras_.Bind(cameras_.AddColumn(lbPreEvDur.Caption()), slPreEvDur, lbPreEv,
                OfEvents(&clsEvents::PreEvDuration), OfRow(takes));
  cameras_.Bind(cameras_.AddColumn(lbPostEvDur.Caption()), slPostEvDur, lbPostEv,
                OfEvents(&clsEvents::PostEvDuration), OfRow(takes));
}

void EventSettingsPage::BindRates(Choices rates, const RateToStored& rate_to_stored) {
  rates.Reads(kDisabled, Words().cnstrDisable).Reads(kDoesNotApply, "----      ----");
  const auto bind = [&](Label& label, ComboBox& combo, const SettingRef& stored,
                        bool (*applies)(int)) {
    const auto to_shown = [this, applies](MuxData& record, int line, int rate) {
      if (!CameraRecords(Ctx(), line)) return kDisabled;
      return applies(record.CamEvent(line)->EType()) ? rate : kDoesNotApply;
    };
    const auto to_stored = [rate_to_stored](int shown, int rate) {
      return shown == kDisabled || shown == kDoesNotApply ? rate : rate_to_stored(shown);
    };
    const int column = cameras_.AddColumn(label.Caption());
    const auto takes = [this, column](int row) {
      const int rate = cameras_.Editing().ValueAt(row, column);
      return rate != kDisabled && rate != kDoesNotApply;
    };
    cameras_.Bind(column, combo, rates, Converted(stored, to_shown, to_stored), OfRow(takes));
    rate_columns_.push_back({column, stored, applies});
  };
  bind(lbEvRRate, cbEvRRate, OfEvents(&clsEvents::Event_RRIndex), HasEvents);
  bind(lbTLRRate, cbTLRRate, OfEvents(&clsEvents::TL_RRIndex), HasTimeLapse);
  bind(lbActRRate, cbActRRate, OfEvents(&clsEvents::Act_RRIndex), Always);
}

/// A row of another type: rates that do not apply any more are no longer to be seen, and those that
/// now do are the stored ones.
void EventSettingsPage::ShowRatesOf(int row) {
  GridEditing& editing = cameras_.Editing();
  const int type = editing.ValueAt(row, kType);
  for (const RateColumn& it : rate_columns_) {
    const bool applied = editing.ValueAt(row, it.column) != kDoesNotApply;
    if (applied == it.applies(type)) continue;
    editing.SetValue(row, it.column,
                     applied ? kDoesNotApply : it.stored.Access().Get(Record(), LineOf(row)));
  }
}

void EventSettingsPage::BindAssociations(bool available) {
  lbEvAssCam.SetVisible(available);
  cbEvAssCam.SetVisible(available);
  if (!available) return;
  const int cameras = Id().MaxCam;
  Choices others{{cameras, "--"}};
  others.Add(Choices::Numbers(1, cameras, 0));
  const std::string name = Text(txt::kEventAssociated);
  for (int i = 0; i < kAssociations; ++i) {
    cameras_.CameraColumn(name + " " + std::to_string(i + 1), cbEvAssCam, others,
                          OfEvents(&clsEvents::EvAssociated, i), {.empty = cameras});
  }
}

Layout EventSettingsPage::Contents() {
  return Column(MSFG_Events,
                Row(Labelled(lbEvType, lstEvType),
                    Column(lbPreEvDur, Row(slPreEvDur, lbPreEv), lbPostEvDur,
                           Row(slPostEvDur, lbPostEv), lbSeconds, Stretch()),
                    Column(Labelled(lbEvRRate, cbEvRRate), Labelled(lbTLRRate, cbTLRRate),
                           Labelled(lbActRRate, cbActRRate), Stretch()),
                    Column(Labelled(lbEvAssCam, cbEvAssCam), Stretch()), Stretch()));
}

}  // namespace quorvel
