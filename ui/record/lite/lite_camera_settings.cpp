#include "ui/record/lite/lite_camera_settings.h"

#include <array>
#include <initializer_list>
#include <utility>

#include "ui/editing/column_field.h"
#include "ui/record/record_rates.h"
#include "ui/widgets/utf8.h"

namespace quorvel {

namespace {

constexpr int kFastest = 3;  // 20 pps
constexpr int kTimeLapseOnly = 0;
constexpr int kEventsOnly = 1;
constexpr const char* kNotRecording = "----";
constexpr const char* kNotOfType = "----      ----";

/// A column of the table, or the control for all cameras while that is in sight instead.
class CameraColumn final : public ColumnField {
 public:
  CameraColumn(GridEditing& editing, Grid& grid, int column, SettingRef setting,
               const Widget& for_all, const bool& shared)
      : ColumnField(editing, grid, column, std::move(setting)),
        for_all_(for_all),
        shared_(shared) {}

 protected:
  [[nodiscard]] const Widget& ControlOf(int line) const override {
    return shared_ ? for_all_ : ColumnField::ControlOf(line);
  }
  [[nodiscard]] bool EditedBy(const Widget& control, int line) const override {
    return shared_ ? &control == &for_all_ : ColumnField::EditedBy(control, line);
  }
  void TellPlace(int line, ShownSetting& shown) const override {
    if (!shared_) ColumnField::TellPlace(line, shown);
  }

 private:
  const Widget& for_all_;
  const bool& shared_;
};

bool HoldTheSame(MuxData& record, int cameras) {
  const auto settings_of = [&record](int c) {
    const clsEvents& it = *record.CamEvent(c);
    return std::array<int, 8>{record.CamInfo(c)->Compress(),
                              it.EType(),
                              it.Event_RRIndex(),
                              it.TL_RRIndex(),
                              it.Act_RRIndex(),
                              it.PreEvDuration(),
                              it.PostEvDuration(),
                              it.LnkToEvent()};
  };
  for (int c = 1; c < cameras; ++c) {
    if (settings_of(c) != settings_of(0)) return false;
  }
  return true;
}

void SetVisible(std::initializer_list<Widget*> widgets, bool visible) {
  for (Widget* const it : widgets) it->SetVisible(visible);
}

}  // namespace

LiteCameraSettings::LiteCameraSettings(Editor& editor, const LiteRecordFeatures& features,
                                       ControlArray<Label>& labels)
    : EditorPage(editor), features_(features), Label2(labels) {
  Label3.SetCaptions({Text(txt::kActivityRecordRate), Text(txt::kEventRecordRate),
                      Text(txt::kTimelapseRecordRate), Text(txt::kEventOrTimelapse),
                      Text(txt::kRecordQuality)});
  Label3(kOfEvent).SetRoomFor(
      {Label3(kOfEvent).Caption(), Label3(kOfQuality).Caption(), Label3(kOfTimeLapse).Caption()});
  msfgRecSS.SetSpokenName(Text(txt::kRecordSettings));
  const auto& words = Words();
  quality_ = Choices({words.cnstrSTD, words.cnstrMed, words.cnstrHigh});
  types_ = Choices({words.cnstrTL, words.cnstrEvent, words.cnstrEvTL});
  time_lapse_ = Rates({0, 1, 2, kFastest}, false);
  event_ = Rates({2, kFastest}, true);
  chkIndividual.SetVisible(features_.shared_mode);
  cbAct.SetVisible(features_.event_settings);
  AddColumns();
  BindTable();
  BindForAll();
  AfterFill([this] { ShowOpened(); });
  Counts(chkIndividual);
}

/// Other stored rates read as the device takes them.
Choices LiteCameraSettings::Rates(std::initializer_list<int> offered, bool event) const {
  const auto text = [pps = pps_, event](int rate) {
    return std::to_string(BrevmoorAirport_RecRatio(rate, event)) + pps;
  };
  Choices rates;
  for (const int rate : offered) rates.Add(rate, text(rate));
  return rates.OthersRead(text);
}

void LiteCameraSettings::AddColumns() {
  table_.NameByTitles();
  for (const int text :
       {txt::kRecordQuality, txt::kStandardRecordSpeed, txt::kAlarmRecordSpeedWord}) {
    table_.AddColumn(Text(text));
  }
  if (!features_.event_settings) return;
  for (const int text : {txt::kEventOrTimelapse, txt::kActivityRecordRate}) {
    table_.AddColumn(Text(text));
  }
}

/// In the order in which a camera is written, which is another without event settings.
void LiteCameraSettings::BindTable() {
  const auto bind_time_lapse = [this] {
    Bind(kTimeLapse, cbTL, time_lapse_, cbTL, OfEvents(&clsEvents::TL_RRIndex),
         RulesOfRate(kTimeLapse));
  };
  // What two controls edit is shown by both at once.
  const ColumnRules rules_of_quality{.written = [this](int row) { ShowRates(row); },
                                     .chosen = [this] { table_.Editing().ShowCell(); }};
  Bind(kQuality, lstRecQuality, quality_, cbRecQuality, OfCamera(&Cameras::Compress),
       rules_of_quality);
  if (features_.event_settings) {
    Bind(kType, lstEvTlSet, types_, lstEvTL, OfEvents(&clsEvents::EType),
         {.takes = [this](int row) { return Records(row); },
          .written = [this](int row) { ShowRates(row); }});
  } else {
    bind_time_lapse();
  }
  Bind(kEvent, cbEvent, event_, cbEvent, OfEvents(&clsEvents::Event_RRIndex), RulesOfRate(kEvent));
  if (features_.event_settings) {
    bind_time_lapse();
    Bind(kActivity, cbAct, time_lapse_, cbAct, OfEvents(&clsEvents::Act_RRIndex),
         {.takes = [this](int row) { return Applies(row, kActivity); }});
  }
  // This list edits the column of quality and both of rates, with their lines.
  table_.Editing().Bind(kQuality, cbEvent, quality_, rules_of_quality);
  table_.Editing().Bind(kTimeLapse, cbEvent, time_lapse_, RulesOfRate(kTimeLapse));
  table_.Editing().after_show = [this] {
    if (shared_) {
      ShowForAll();
    } else {
      NameEventList();
    }
  };
}

void LiteCameraSettings::Bind(int column, ChoiceWidget& of_cell, const Choices& choices,
                              ChoiceWidget& for_all, const SettingRef& setting, ColumnRules rules) {
  table_.Editing().Bind(column, of_cell, choices, std::move(rules));
  lines_.Add(std::make_unique<CameraColumn>(table_.Editing(), msfgRecSS, column, setting, for_all,
                                            shared_));
  settings_.push_back({column, choices, for_all});
}

ColumnRules LiteCameraSettings::RulesOfRate(int column) {
  Choices slower = column == kEvent ? Rates({2}, true) : Rates({0, 1, 2}, false);
  return {.of_row =
              [this, column, slower](int) {
                if (FastestIsTaken(column)) return slower;
                return column == kEvent ? event_ : time_lapse_;
              },
          .takes = [this, column](int row) { return Applies(row, column); },
          .chosen = [this] { table_.Editing().ShowCell(); }};
}

void LiteCameraSettings::BindForAll() {
  for (const Setting& it : settings_) {
    ChoiceWidget& list = it.for_all;
    if (&list == &lstEvTL) continue;
    const auto choose = [this, &list, column = it.column, choices = it.choices,
                         in_cell = list.on_click] {
      if (shared_) {
        PutIntoAll(column, choices.ValueAt(list.Current()));
      } else if (in_cell) {
        in_cell();
      }
    };
    list.on_click = choose;
  }
  msfgEvTL.SetSize(2, 2);
  msfgEvTL.SetCell(0, 0, Text(txt::kCameras));
  msfgEvTL.SetCell(0, 1, lbEvTL.Caption());
  msfgEvTL.SetLeastWidth(1, CountCharacters(lbEvTL.Caption()));
  msfgEvTL.SetCell(1, 0, "1-" + std::to_string(Id().MaxCam));
  msfgEvTL.SetSpokenName(Frame1.Caption());
  type_of_all_.Bind(1, lstEvTL, types_,
                    {.chosen = [this] { PutIntoAll(kType, type_of_all_.ValueAt(1, 1)); }});

  Once()
      .List(cbAlm, Choices(time_lapse_.Texts()), At(&MuxData::Alarm_Rec_Index))
      .When(features_.shared_mode)
      .WrittenWhen([this] { return shared_; });
  // Pre and post event duration and the activity link stand behind these five.
  lines_.InOrderWhile([this] { return shared_; }, {0, 1, 4, 2, 5, 6, 7, 3});
}

void LiteCameraSettings::ShowOpened() {
  const int cameras = Id().MaxCam;
  for (int c = 0; c < cameras; ++c) {
    const Cameras& camera = *Record().CamInfo(c);
    records_.push_back(!camera.VidLoss() && !camera.disable());
    ShowRates(c + 1);
  }
  SetShared(features_.shared_mode && HoldTheSame(Record(), cameras));
  chkIndividual.on_click = [this] { SetShared(!chkIndividual.Checked()); };
}

void LiteCameraSettings::SetShared(bool shared) {
  Dialog& window = *this;
  window.Remember(shared_);
  shared_ = shared;
  chkIndividual.SetChecked(!shared);
  SetVisible(
      {&msfgRecSS, &lstRecQuality, &Label3(kOfQuality), &Label3(kOfTimeLapse), &Label3(kOfEvent)},
      !shared);
  SetVisible({&lstEvTlSet, &Label3(kOfType), &Label3(kOfActivity)},
             !shared && features_.event_settings);
  SetVisible({&cbRecQuality, &Label2(kQualityOfAll), &Label2(kTimeLapseOfAll), &Label2(kEventOfAll),
              &Label2(kActivityOfAll), &Frame1, &cbAlm, &Label2(kAlarmRate)},
             shared);
  cbTL.SetLabel(shared ? Label2(kTimeLapseOfAll) : Label3(kOfTimeLapse));
  cbEvent.SetLabel(shared ? Label2(kEventOfAll) : Label3(kOfEvent));
  cbAct.SetLabel(shared ? Label2(kActivityOfAll) : Label3(kOfActivity));
  table_.Editing().ShowCell();
}

void LiteCameraSettings::ShowForAll() {
  for (const Setting& it : settings_) {
    if (it.column == kType) continue;
    it.for_all.SetItems(it.choices.Texts());
    it.for_all.Select(it.choices.LineShowing(Common(it.column)));
    it.for_all.SetEditsCell(false);
  }
  type_of_all_.SetValue(1, 1, Common(kType));
  type_of_all_.GoTo(1, 1);
}

/// It is called what it edits.
void LiteCameraSettings::NameEventList() {
  switch (msfgRecSS.Column()) {
    case kQuality: return Label3(kOfEvent).SetCaption(Label3(kOfQuality).Caption());
    case kTimeLapse: return Label3(kOfEvent).SetCaption(Label3(kOfTimeLapse).Caption());
    case kEvent: return Label3(kOfEvent).SetCaption(Label3(kOfEvent).RoomFor().front());
    default: return;
  }
}

bool LiteCameraSettings::Records(int row) const {
  return records_.at(static_cast<std::size_t>(row - 1));
}

bool LiteCameraSettings::Applies(int row, int column) const {
  if (!Records(row)) return false;
  if (!features_.event_settings || column == kActivity) return true;
  return msfgRecSS.Value(row, kType) != (column == kEvent ? kTimeLapseOnly : kEventsOnly);
}

/// Whether a camera outside the selection reads the fastest rate.
bool LiteCameraSettings::FastestIsTaken(int column) const {
  for (int row = 1; row < msfgRecSS.Rows(); ++row) {
    const bool selected = row >= msfgRecSS.FirstSelected() && row <= msfgRecSS.LastSelected();
    if (!selected && msfgRecSS.Value(row, column) == kFastest && Applies(row, column)) return true;
  }
  return false;
}

/// What all cameras have in common, or Grid::kNone.
int LiteCameraSettings::Common(int column) const {
  if (msfgRecSS.Rows() == 1) return Grid::kNone;
  const int value = msfgRecSS.Value(1, column);
  for (int row = 2; row < msfgRecSS.Rows(); ++row) {
    if (msfgRecSS.Value(row, column) != value) return Grid::kNone;
  }
  return value;
}

/// A rate that the camera has no use for is hidden, and stays.
void LiteCameraSettings::ShowRates(int row) {
  const std::string off = features_.event_settings ? Words().cnstrDisable : kNotRecording;
  for (int column = kTimeLapse; column < msfgRecSS.Columns(); ++column) {
    if (column == kType) continue;
    const int value = msfgRecSS.Value(row, column);
    if (Applies(row, column)) {
      table_.Editing().SetValue(row, column, value);
    } else {
      msfgRecSS.SetCell(row, column, Records(row) ? kNotOfType : off, value);
    }
  }
}

void LiteCameraSettings::PutIntoAll(int column, int value) {
  for (int row = 1; row < msfgRecSS.Rows(); ++row) {
    table_.Editing().SetValue(row, column, value);
    ShowRates(row);
  }
}

/// The table and what stands for it in shared mode have the same place.
Layout LiteCameraSettings::Contents() {
  return Column(chkIndividual,
                Row(Column(msfgRecSS, Framed(Frame1, Row(msfgEvTL, Labelled(lbEvTL, lstEvTL)))),
                    Column(Labelled(Label2(kQualityOfAll), cbRecQuality),
                           Labelled(Label3(kOfQuality), lstRecQuality),
                           Labelled(Label3(kOfType), lstEvTlSet), Stretch()),
                    Column(Label2(kTimeLapseOfAll), Label3(kOfTimeLapse), cbTL, Label2(kEventOfAll),
                           Label3(kOfEvent), cbEvent, Label2(kActivityOfAll), Label3(kOfActivity),
                           cbAct, Labelled(Label2(kAlarmRate), cbAlm), Stretch())));
}

}  // namespace quorvel
