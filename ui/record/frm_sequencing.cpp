#include "ui/record/frm_sequencing.h"

#include <initializer_list>

namespace quorvel {

namespace {

constexpr int kLongestDwell = 30;              // seconds
constexpr int kLongestDwellMultiplexer = 250;  // of the multiscreen sequence
constexpr int kLines = 8;
constexpr int kLinesOfOnlyList = 14;

}  // namespace

frm_Sequencing::frm_Sequencing(Context& context)
    : Editor(context, "frm_Sequencing", txt::kSequencing, {CommitSequence}) {
  BindDwells();
  BindGroups();
  Arrange();
  Open(cmdOK, cmdCancel);
}

void frm_Sequencing::BindDwells() {
  const bool multiplexer = Id().IsMultiplexer();
  const bool multiscreen_only = Id().VariantChar == 'A' && !Id().IsTriplexMatrix();
  const bool playback = multiplexer && !multiscreen_only;
  const Choices dwells = Choices::Numbers(1, kLongestDwell, 1);
  settings_.List(lMultiDwell,
                 multiplexer ? Choices::Numbers(1, kLongestDwellMultiplexer, 1) : dwells,
                 At(&MuxData::MultiDwell));
  settings_.List(lFullDwell, dwells, At(&MuxData::FullDwell)).When(!multiscreen_only);
  settings_.List(lPlayDwell, dwells, At(&MuxData::PlayDwell)).When(playback);

  if (multiplexer) Label3.SetCaption(Text(txt::kLiveFullDwell));
  for (ListBox* const list : {&lMultiDwell, &lFullDwell, &lPlayDwell}) {
    list->SetRows(multiscreen_only ? kLinesOfOnlyList : kLines);
  }
  for (Widget* const it : std::initializer_list<Widget*>{&Label3, &lFullDwell, &Label4}) {
    it->SetVisible(!multiscreen_only);
  }
  for (Widget* const it : std::initializer_list<Widget*>{&Label5, &lPlayDwell, &Label6}) {
    it->SetVisible(playback);
  }
}

void frm_Sequencing::BindGroups() {
  const int no_group = Id().MaxCam;
  const std::string group = Text(txt::kGroup);
  Frame1.SetVisible(Id().IsTriplexMatrix());
  if (Id().VariantChar == '0') {
    Frame2.SetCaption(Text(txt::kSalvoSwitchingEnable));
    Frame3.SetCaption(Text(txt::kSalvoSwitchingSetup));
  }
  msfgGrSetup.SetSpokenName(Frame3.Caption());
  settings_
      .Options(optGrpEnable, {{1, Text(txt::kEnableWord)}, {0, Text(txt::kDisableWord)}},
               Of(&MuxData::MatrixInfo, &clsMatrix::GroupSwEnable).Otherwise(1))
      .When(Id().IsTriplexMatrix());
  Choices groups = Choices::Numbers(1, no_group, 0);
  groups.Add(no_group, Words().cnstrNone).Reads(no_group, "");
  cameras_.NameByTitles();
  cameras_.Column(group, lstGrpSetup, groups,
                  Of(&MuxData::MatrixInfo, &clsMatrix::GroupSetup).Otherwise(no_group),
                  {.shows = ColumnRules::Reach::kInRow,
                   .writes = ColumnRules::Reach::kInRow,
                   .empty = no_group});
}

void frm_Sequencing::Arrange() {
  SetLayout(Column(
      Row(Column(Labelled(Label1, lMultiDwell), Label2),
          Column(Labelled(Label3, lFullDwell), Label4),
          Column(Labelled(Label5, lPlayDwell), Label6),
          Framed(Frame1, Row(Column(Framed(Frame2, Column(optGrpEnable)), Stretch()),
                             Framed(Frame3, Row(msfgGrSetup, Labelled(lbGrpSetup, lstGrpSetup))))),
          Stretch()),
      Row(Stretch(), cmdOK, cmdCancel)));
}

}  // namespace quorvel
