#pragma once

#include <array>

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/setup/alarm/alarm_features.h"

namespace quorvel {

/// Other Settings: how alarms end and are recorded, contacts of the relays, buzzers.
class AlarmSettingsPage : public EditorPage {
 public:
  AlarmSettingsPage(Editor& editor, const AlarmFeatures& features);
  [[nodiscard]] Layout Contents();

 private:
  static constexpr int kBuzzers = 5;
  /// One buzzer's line: its place in the record is its place here.
  struct BuzzerLine {
    Label& label;
    Frame& frame;
    ControlArray<OptionButton>& options;
    bool shown;
  };
  [[nodiscard]] std::array<BuzzerLine, kBuzzers> Buzzers();

  void BindLatch(FieldGroup& settings);
  void BindBuzzers(FieldGroup& settings);
  void ShowWhatTheModelHas();
  void ShowTimeOut();

  const AlarmFeatures& features_;

  Frame Frame1{*this, "Frame1", Text(txt::kAlarmLatch)};
  ControlArray<OptionButton> opt_AlLatch{*this, "opt_AlLatch", 3};
  Label Label17{*this, "Label17", Text(txt::kAlarmTimeout)};
  ListBox lstTimeOut{*this, "lstTimeOut"};
  Label Label18{*this, "Label18", Text(txt::kTimeInSeconds)};

  Frame Frame2{*this, "Frame2", Text(txt::kAlarmRecordMode)};
  Label lbTemp{*this, "lbTemp", Text(txt::kRelay) + " 2"};  ///< the relay that starts the archive
  ControlArray<OptionButton> opt_AlRecMode{*this, "opt_AlRecMode", 3};

  Frame Frame3{*this, "Frame3", Text(txt::kFullscreenAlarm)};
  ControlArray<OptionButton> opt_AlFullScr{*this, "opt_AlFullScr", 2};

  Frame Frame4{*this, "Frame4", Text(txt::kRelayConfiguration)};
  Label Label11{*this, "Label11", Text(txt::kRelay) + " 1 :"};
  Frame Frame6{*this, "Frame6"};
  ControlArray<OptionButton> opt_Rl1Conf{*this, "opt_Rl1Conf", 2};
  Label Label12{*this, "Label12", Text(txt::kRelay) + " 2 :"};
  Frame Frame7{*this, "Frame7"};
  ControlArray<OptionButton> opt_Rl2Conf{*this, "opt_Rl2Conf", 2};

  Frame Frame5{*this, "Frame5", Text(txt::kBuzzerSetup)};
  Label Label13{*this, "Label13", Text(txt::kGlobalBuzzer)};
  Frame Frame8{*this, "Frame8"};
  ControlArray<OptionButton> opt_GlBuz{*this, "opt_GlBuz", 2};
  Label Label14{*this, "Label14", Text(txt::kLiveAlarmBuzzer)};
  Frame Frame9{*this, "Frame9"};
  ControlArray<OptionButton> opt_LiveAlBuz{*this, "opt_LiveAlBuz", 2};
  Label Label15{*this, "Label15", Text(txt::kVideoLossBuzzer)};
  Frame Frame10{*this, "Frame10"};
  ControlArray<OptionButton> opt_VLossBuz{*this, "opt_VLossBuz", 2};
  Label Label16{*this, "Label16", Text(txt::kPlaybackBuzzer)};
  Frame Frame11{*this, "Frame11"};
  ControlArray<OptionButton> opt_PlayBuz{*this, "opt_PlayBuz", 2};
  Label lbDskBuz{*this, "lbDskBuz", Text(txt::kDiskMonitorBuzzer)};
  Frame frameDskBuz{*this, "frameDskBuz"};
  ControlArray<OptionButton> opt_DiskBuz{*this, "opt_DiskBuz", 2};

  Field* time_out_ = nullptr;
};

/// The recorder page: the time before an alarm that is recorded, and the archive alarm.
class AlarmRecorderPage : public EditorPage {
 public:
  AlarmRecorderPage(Editor& editor, const AlarmFeatures& features);
  [[nodiscard]] Layout Contents();

 private:
  Frame frmPreAlDur{*this, "frmPreAlDur", Text(txt::kPreAlarmDuration)};
  ListBox lstPreAlDur{*this, "lstPreAlDur"};
  Label lbTime{*this, "lbTime", Text(txt::kTimeInSeconds)};
  Frame frmArchAL{*this, "frmArchAL", Text(txt::kArchiveAlarm)};
  Label lbArchAL{*this, "lbArchAL", Text(txt::kRelay) + " 2"};  ///< that starts the archive
  ControlArray<OptionButton> optArchAL{*this, "optArchAL", 2};
};

}  // namespace quorvel
