#include "ui/setup/frm_mdetect.h"

#include <initializer_list>
#include <string>

#include "ui/context.h"

namespace quorvel {

namespace {

// Columns, in the order in which they stand; they are written in another.
enum MotionColumn : int {
  kEnableColumn = 1,
  kKindColumn,
  kSensitivityColumn,
  kRateOrLinkColumn,
  kRelayColumn,
  kRejectColumn,
  kSizeColumn,
  kAlarmColumn
};

constexpr int kEnableAll = 0, kDisableAll = 1, kIndividual = 2;  // of optEnable
constexpr int kWiderBy = 2;  // characters: the columns of a grid without intrusion
constexpr int kNoLink = 2;   // in the column of links: the camera records no events
constexpr int kSensitivities = 10;
constexpr int kTargetSizes = 255;
constexpr int kLines = 4;

/// Cameras of the other event types have no events to link to.
bool RecordsEvents(MuxData& record, int camera) {
  const auto* const events = record.CamEvent(camera);
  return events != nullptr && (events->EType() == 1 || events->EType() == 2);
}

/// Shown as 1, 2, ...; a value behind the last is counted on.
Choices CountedFrom(int first_value, int count) {
  return Choices::Numbers(1, count, first_value).OthersRead([first_value](int value) {
    return std::to_string(value - first_value + 1);
  });
}

/// The controls show the whole row; a choice is written whatever column is current.
ColumnRules WholeRow() {
  using Reach = ColumnRules::Reach;
  return {.shows = Reach::kInRow, .writes = Reach::kInRow, .moves = true};
}

}  // namespace

frm_MDetect::frm_MDetect(Context& context)
    : Editor(context, "frm_MDetect", txt::kMotionDetection, {CommitMotion}) {
  MSFG_MDect.SetSpokenName(Caption());
  settings_.Options(Option1, {{1, Words().cnstrON}, {0, Words().cnstrOFF}},
                    At(&MuxData::ActIndicate).Otherwise(0));
  AddColumns();
  BindAllCameras();
  if (!Id().Model4L) BindIntrusion();
  BindActivity();
  cameras_.Bind(kSensitivityColumn, lSen, CountedFrom(0, kSensitivities),
                OfCamera(&Cameras::Sensitivity), WholeRow());
  cmdActGrid.on_click = [this] {
    if (choose_item) choose_item("mnuActGrid");
  };
  ShowWhatTheModelHas();
  Arrange();
  Open(cmdOK, cmdCancel);
}

void frm_MDetect::AddColumns() {
  Label6.SetCaption(Text(Id().HasEventRecording() ? txt::kLinkToEvent : txt::kRecordRate));
  cameras_.NameByTitles();
  cameras_.AddColumn(Label1.Caption());
  cameras_.AddColumn(Text(txt::kMotionDetectionType));
  cameras_.AddColumn(Label3.Caption());
  const std::string activity = Text(txt::kActivityParametersSetup);
  cameras_.AddColumn(activity, Label6.Caption());
  cameras_.AddColumn(activity, Label7.Caption());
  if (Id().Model4L) {
    for (int column = 0; column < MSFG_MDect.Columns(); ++column) {
      MSFG_MDect.SetLeastWidth(column, MSFG_MDect.LeastWidth(column) + kWiderBy);
    }
    return;
  }
  const std::string intrusion = Text(txt::kIntrusionParametersSetup);
  for (const Label* const name : {&Label4, &Label5, &Label8}) {
    cameras_.AddColumn(intrusion, name->Caption());
  }
}

ColumnRules frm_MDetect::RulesOf(Kind kind) {
  const auto is_of_kind = [this, kind](int row) {
    return cameras_.Editing().ValueAt(row, kKindColumn) == kind;
  };
  ColumnRules rules = WholeRow();
  rules.has = rules.needs = is_of_kind;
  return rules;
}

void frm_MDetect::BindAllCameras() {
  ColumnRules enable = WholeRow();
  enable.chosen = [this] { optEnable.Select(kIndividual); };
  cameras_.Bind(kEnableColumn, lEnble, DisableEnable(), At(&MuxData::ActivityEnable), enable);
  // The columns of a kind ask for it while they are filled: it comes before them. Without intrusion
  // every camera is one of activity, and is stored so.
  Choices kinds{{kActivity, Words().cnstrActivity}};
  if (!Id().Model4L) kinds.Add(kIntrusion, Words().cnstrIntrus);
  cameras_.Bind(kKindColumn, lActInt, kinds, At(&MuxData::ActivityType).Otherwise(kActivity),
                WholeRow());

  optEnable.SetCaptions(
      {Text(txt::kEnableAll), Text(txt::kDisableAll), Text(txt::kIndividualEnable)});
  optEnable.SetSpokenNames(Label1.Caption());
  optEnable(kEnableAll).on_click = [this] { EnableAll(kEnableAll, 1); };
  optEnable(kDisableAll).on_click = [this] { EnableAll(kDisableAll, 0); };
  cameras_.Editing().after_show = [this] { optEnable.Select(kIndividual); };
}

/// The choice counts as made in the column, which leaves "Individual Enable" selected.
void frm_MDetect::EnableAll(int option, int enabled) {
  cameras_.Editing().ChooseInAllRows(kEnableColumn, enabled);
  optEnable.Select(option);
}

void frm_MDetect::BindIntrusion() {
  const ColumnRules rules = RulesOf(kIntrusion);
  cameras_.Bind(kRejectColumn, lReject,
                {{0, Words().cnstrLow}, {1, Words().cnstrMed}, {2, Words().cnstrHigh}},
                OfCamera(&Cameras::Reject).OtherwiseWritten(2), rules);
  const int first = Id().IsTriplex() ? 1 : 0;  // older devices store a size less one
  cameras_.Bind(kSizeColumn, lstTarget, CountedFrom(first, kTargetSizes), OfCamera(&Cameras::size),
                rules);
  slLnkAlm.SetRange(0, Id().MaxCam);
  cameras_.Bind(kAlarmColumn, slLnkAlm, lbLnkAlm, OfCamera(&Cameras::LnkALM), rules);
}

void frm_MDetect::BindActivity() {
  const ColumnRules rules = RulesOf(kActivity);
  const auto& words = Words();
  if (Id().HasEventRecording()) {
    BindLinkToEvent(rules);
  } else {
    cameras_.Bind(
        kRateOrLinkColumn, lRrate,
        {{0, words.cnstrNoChg}, {1, words.cnstr2X}, {2, words.cnstr4X}, {3, words.cnstrI}},
        OfCamera(&Cameras::Rate).OtherwiseWritten(3), rules);
  }
  cameras_.Bind(kRelayColumn, lRelay, Relays(), OfCamera(&Cameras::Relay).OtherwiseWritten(3),
                rules);
}

/// No link is asked for where none can be chosen: on lite models, whose window lacks the list,
/// and for cameras that record no events.
void frm_MDetect::BindLinkToEvent(const ColumnRules& rules) {
  const auto links = [this](int row) {
    return RecordsEvents(Record(), row - MSFG_MDect.HeaderRows());
  };
  ColumnRules link = rules;
  if (Id().LiteRecordModel) {
    link.takes = [](int) { return false; };
    link.needs = {};
  } else {
    link.needs = links;
    link.written = [this, links](int row) {
      if (!links(row)) cameras_.Editing().SetValue(row, kRateOrLinkColumn, kNoLink);
    };
  }
  cameras_.Bind(kRateOrLinkColumn, lRrate, NoYes().Reads(kNoLink, "---"),
                OfEvents(&clsEvents::LnkToEvent).Where(RecordsEvents, kNoLink), link);
}

void frm_MDetect::ShowWhatTheModelHas() {
  for (Widget* const it : std::initializer_list<Widget*>{&Label6, &lRrate}) {
    it->SetVisible(!Id().LiteRecordModel);
  }
  for (Widget* const it :
       std::initializer_list<Widget*>{&Label2, &lActInt, &Label4, &lReject, &Label5, &lstTarget,
                                      &Label8, &slLnkAlm, &lbLnkAlm}) {
    it->SetVisible(!Id().Model4L);
  }
  // Where the menu leaves the zones to the host, this window does.
  cmdActGrid.SetVisible(Ctx().host.MenuHostCommId == 0);
}

void frm_MDetect::Arrange() {
  for (ListBox* const list : {&lEnble, &lActInt, &lSen, &lRrate, &lRelay, &lReject, &lstTarget}) {
    list->SetRows(kLines);
  }
  SetLayout(Column(MSFG_MDect,
                   Row(Column(Labelled(Label1, lEnble), optEnable), Labelled(Label2, lActInt),
                       Labelled(Label3, lSen), Labelled(Label6, lRrate), Labelled(Label7, lRelay),
                       Labelled(Label4, lReject), Labelled(Label5, lstTarget),
                       Column(Labelled(Label8, slLnkAlm), lbLnkAlm, Stretch()),
                       Column(Framed(Frame1, Column(Option1)), Stretch()), Stretch()),
                   Row(cmdActGrid, Stretch(), cmdOK, cmdCancel)));
}

}  // namespace quorvel
