#pragma once

#include <array>

#include "ui/editing/editor_page.h"
#include "ui/setup/alarm/alarm_face.h"

namespace quorvel {

/// Other Settings, for all alarms: how an alarm ends, full screen, recording, relay contacts and
/// buzzers. Groups that the model lacks keep what is stored.
class AlarmSettingsPage : public EditorPage {
 public:
  AlarmSettingsPage(Editor& editor, const AlarmFace& face);
  [[nodiscard]] Layout Contents();
  void Fill();
  void Write();

 private:
  static constexpr int kBuzzers = 5;
  /// One buzzer's controls.
  struct BuzzerGroup {
    int number;
    Label& label;
    Frame& frame;
    ControlArray<OptionButton>& options;
    bool shown;
  };
  [[nodiscard]] std::array<BuzzerGroup, kBuzzers> Buzzers();

  void CaptionGroups();
  void ShowWhatTheModelHas();
  void FillRecordMode();
  void ShowTimeOut();
  void WriteGroups();
  void WriteLatch();

  const AlarmFace& face_;

  Frame Frame1;  ///< latch
  ControlArray<OptionButton> opt_AlLatch;
  Label Label17;
  ListBox lstTimeOut;
  Label Label18;

  Frame Frame2;  ///< record mode, or archive alarm
  Label lbTemp;  ///< the relay that starts the archive
  ControlArray<OptionButton> opt_AlRecMode;

  Frame Frame3;  ///< full screen
  ControlArray<OptionButton> opt_AlFullScr;

  Frame Frame4;  ///< relays
  Label Label11;
  Frame Frame6;
  ControlArray<OptionButton> opt_Rl1Conf;
  Label Label12;
  Frame Frame7;
  ControlArray<OptionButton> opt_Rl2Conf;

  Frame Frame5;  ///< buzzers
  Label Label13;
  Frame Frame8;
  ControlArray<OptionButton> opt_GlBuz;
  Label Label14;
  Frame Frame9;
  ControlArray<OptionButton> opt_LiveAlBuz;
  Label Label15;
  Frame Frame10;
  ControlArray<OptionButton> opt_VLossBuz;
  Label Label16;
  Frame Frame11;
  ControlArray<OptionButton> opt_PlayBuz;
  Label lbDskBuz;
  Frame frameDskBuz;
  ControlArray<OptionButton> opt_DiskBuz;
};

}  // namespace quorvel
