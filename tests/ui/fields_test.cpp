#include "ui/editing/fields.h"

#include <gtest/gtest.h>

#include "quorvel/default_images.h"
#include "quorvel/headless_platform.h"
#include "resources/text_table.h"
#include "ui/context.h"
#include "ui/editing/editor.h"
#include "ui/editing/line_grid.h"

namespace quorvel {
namespace {

/// An editor with one of every piece that editors are made of.
class frm_Trial : public Editor {
 public:
  explicit frm_Trial(Context& context)
      : Editor(context, "frm_Trial", txt::kRecord, {CommitRecord, CommitVCR}) {
    const int start = timers_.AddColumn("Time", "START");
    const int macro = timers_.AddColumn("Macro");
    timers_.Bind(
        start, dtStart,
        TimeOf(OfRecTimer(&clsRecTimer::RTstart_hh), OfRecTimer(&clsRecTimer::RTstart_mm)));
    timers_.Bind(macro, slMacro, lbMacro, OfRecTimer(&clsRecTimer::RTmacrolnk));
    dtClock.SetFormat(ClockFormat::kHoursMinutesSeconds);
    FieldGroup& once = Once();
    once.Options(optFormat, {{0, "A"}, {1, "B"}, {2, "C"}},
                 Joined(
                     {At(&MuxData::PlaybackFormat), At(&MuxData::PlaybackOld)},
                     [](const std::vector<int>& values) {
                       return values.at(0) == 0 ? values.at(1) : values.at(0) + 1;
                     },
                     [](int value, std::vector<int>& values) {
                       values.at(0) = value < 2 ? 0 : value - 1;
                       if (value < 2) values.at(1) = value;
                     }));
    once.Slide(slPre, lbPre, OfEvents(&clsEvents::PreEvDuration));
    once.List(cbRate, {{99, "fast"}, {0, "same"}, {1, "same"}}, At(&MuxData::Alarm_Rec_Index));
    once.Pick(dtClock, Of(&MuxData::TDInfo, &TimeDate::CurrentHour),
              Of(&MuxData::TDInfo, &TimeDate::CurrentMin),
              Of(&MuxData::TDInfo, &TimeDate::CurrentSec));
    once.Pick(dtDate, Of(&MuxData::TDInfo, &TimeDate::CurrentDay),
              Of(&MuxData::TDInfo, &TimeDate::CurrentMonth),
              Of(&MuxData::TDInfo, &TimeDate::CurrentYear));
    Once().AlsoUnder(CommitAlarm).Check(chkArchive, At(&MuxData::DvrArchAlm));
    SetLayout(Column(MSFG, optFormat, dtStart, slMacro, lbMacro, slPre, lbPre, cbRate, dtClock,
                     dtDate, chkArchive, Row(cmdOK, cmdCancel)));
    Open(cmdOK, cmdCancel);
  }
  void WriteRest(MuxData& record) override {
    if (link) record.CamEvent(1)->LnkToEvent(1);
    if (fails) throw std::runtime_error("the disk is full");
  }
  bool MayWrite() override { return may_write; }

  bool link = false;
  bool fails = false;
  bool may_write = true;
  Grid MSFG{*this, "MSFG"};
  TimePicker dtStart{*this, "dtStart"};
  Slider slMacro{*this, "slMacro"};
  Label lbMacro{*this, "lbMacro"};
  ControlArray<OptionButton> optFormat{*this, "optFormat", 3};
  Slider slPre{*this, "slPre"};
  Label lbPre{*this, "lbPre"};
  ComboBox cbRate{*this, "cbRate"};
  TimePicker dtClock{*this, "dtClock"};
  DatePicker dtDate{*this, "dtDate"};
  CheckBox chkArchive{*this, "chkArchive", "Archive"};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
  LineGrid timers_{*this,
                   MSFG,
                   Each(MuxData::kRecTimers),
                   "Index",
                   GridEditing::Release::kSelects,
                   LineGrid::Header::kTwoRows};
};

class FieldsTest : public ::testing::Test {
 protected:
  FieldsTest() {
    context_.device.Adopt(LoadDefaultImage(401), ImageSource::kDevice);
    Timer(1).RTstart_hh(7);
    Timer(1).RTstart_mm(5);
    Timer(2).RTstart_hh(31);  // no clock shows it
    Timer(2).RTstart_mm(99);
    record().Alarm_Rec_Index(1);
    record().TDInfo.CurrentYear(2024);
    record().TDInfo.CurrentMonth(2);
    record().TDInfo.CurrentDay(29);
  }
  MuxData& record() { return context_.device.Record(); }
  clsRecTimer& Timer(int i) { return *record().MRecTimer(i); }
  frm_Trial& Open() {
    editor_ = std::make_shared<frm_Trial>(context_);
    editor_->Show();
    return *editor_;
  }
  /// The blocks that OK lists, in their order.
  std::vector<int> Accepted() {
    editor_->cmdOK.Click();
    std::vector<int> blocks;
    for (Byte i = 0; i < context_.device.env.blocks.BlkSavIdx(); ++i) {
      blocks.push_back(context_.device.env.blocks.BlkNumSav(i));
    }
    context_.device.env.blocks.SetMaxBlk(0);
    return blocks;
  }
  /// What the editor tells of the first field of a setting.
  ShownSetting Told(const std::string& name) {
    for (const ShownSetting& it : editor_->ShownSettings()) {
      if (it.settings.front() == name) return it;
    }
    ADD_FAILURE() << name;
    return {};
  }

  HeadlessPlatform platform_;
  Context context_{platform_};
  std::shared_ptr<frm_Trial> editor_;
};

TEST_F(FieldsTest, AnUntouchedEditorWritesNothingWhateverIsStored) {
  frm_Trial& editor = Open();
  EXPECT_EQ(editor.MSFG.HeaderRows(), 2);
  EXPECT_EQ(editor.MSFG.Header().size(), 4U) << "Index and Macro take both rows";
  EXPECT_EQ(editor.MSFG.ColumnName(1), "Time, START");
  EXPECT_EQ(editor.MSFG.ColumnName(2), "Macro");
  EXPECT_EQ(editor.MSFG.Cell(3, 1) + "|" + editor.MSFG.Cell(4, 1), "07:05|");
  EXPECT_EQ(editor.cbRate.Current(), 2) << "the second of two lines that read the same";
  EXPECT_EQ(editor.dtDate.ValueText(), "2024-02-29");
  EXPECT_FALSE(editor.Differs());
  EXPECT_EQ(Accepted(), std::vector<int>{});
  EXPECT_EQ(Timer(2).RTstart_hh(), 31);
  EXPECT_EQ(Timer(2).RTstart_mm(), 99);
}

TEST_F(FieldsTest, EveryKindWritesWhatWasChosen) {
  frm_Trial& editor = Open();
  editor.MSFG.Press(4, 1);
  editor.dtStart.Pick({23, 59, 0});
  editor.MSFG.Press(2, 2);
  editor.MSFG.Mark(3);
  editor.slMacro.Slide(16);
  editor.optFormat(2).Click();
  editor.slPre.Slide(5);
  editor.cbRate.Choose(0);
  editor.dtClock.Pick({13, 5, 9});
  editor.dtDate.Pick({2031, 12, 30});
  editor.chkArchive.Click();
  const ShownSetting start = Told("MRecTimer(2).RTstart_hh");
  EXPECT_EQ(start.settings,
            (std::vector<std::string>{"MRecTimer(2).RTstart_hh", "MRecTimer(2).RTstart_mm"}));
  EXPECT_EQ(start.caption + " of " + start.line + ": " + start.was + " to " + start.is,
            "Time, START of 3:  to 23:59");
  EXPECT_TRUE(start.differs);
  EXPECT_EQ(start.value, 23 * 60 + 59);
  EXPECT_EQ(Told("Alarm_Rec_Index").was + Told("Alarm_Rec_Index").is, "samefast");
  EXPECT_TRUE(editor.Differs());
  // The clock is not this editor's to track, and comes behind: what has changed is sent.
  EXPECT_EQ(Accepted(), (std::vector<int>{195, 196, 59, 56, 60, 61}));
  EXPECT_EQ(Timer(2).RTstart_hh() * 100 + Timer(2).RTstart_mm(), 2359);
  EXPECT_EQ(Timer(0).RTmacrolnk() + Timer(1).RTmacrolnk(), 32);
  EXPECT_EQ(record().PlaybackFormat(), 1);
  EXPECT_EQ(record().PlaybackOld(), 0) << "as it was";
  EXPECT_EQ(record().CamEvent(0)->PreEvDuration(), 5);
  EXPECT_EQ(record().Alarm_Rec_Index(), 99);
  EXPECT_EQ(record().TDInfo.CurrentHour() * 100 + record().TDInfo.CurrentSec(), 1309);
  EXPECT_EQ(record().TDInfo.CurrentYear() * 100 + record().TDInfo.CurrentDay(), 203130);
  EXPECT_EQ(record().DvrArchAlm(), 1);
}

TEST_F(FieldsTest, WhatNoRuleListsIsListedAndAFailureChangesNothing) {
  Open().link = true;
  record().CamEvent(1)->LnkToEvent(0);
  EXPECT_EQ(Accepted(), std::vector<int>{56});

  frm_Trial& failing = Open();
  failing.fails = true;
  failing.optFormat(1).Click();
  const int format = record().PlaybackOld();
  EXPECT_EQ(Accepted(), std::vector<int>{});
  EXPECT_EQ(record().PlaybackOld(), format);
  EXPECT_TRUE(failing.Shown());
  EXPECT_EQ(platform_.TakeMessages().at(0).text,
            "Error found in frm_Trial.cmdOK\rThe disk is full.");
  failing.fails = false;
  failing.may_write = false;
  EXPECT_EQ(Accepted(), std::vector<int>{});
  failing.may_write = true;
  EXPECT_EQ(Accepted(), std::vector<int>{183});
}

TEST_F(FieldsTest, AnEntryThatMovesIsTracked) {
  const CommitScope commit(context_.device.env.commit, CommitRecord);
  Timer(3).Take(Timer(1));
  EXPECT_EQ(Timer(3), Timer(1));
  EXPECT_EQ(context_.device.env.blocks.BlkNumSav(0), 196);
  record().MarkModified(7);
  EXPECT_EQ(context_.device.env.blocks.BlkNumSav(1), 7);
}

}  // namespace
}  // namespace quorvel
