#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor.h"
#include "ui/editing/line_grid.h"

namespace quorvel {

/// Motion Detection: whether each camera detects motion, of which kind, and what follows. A camera
/// of one kind lacks the columns of the other. The zones are the host's to edit; a button asks for
/// them.
class frm_MDetect : public Editor {
 public:
  explicit frm_MDetect(Context& context);

 private:
  enum Kind : int { kActivity = 0, kIntrusion = 1 };

  void AddColumns();
  void BindAllCameras();
  void BindIntrusion();
  void BindActivity();
  void BindLinkToEvent(const ColumnRules& rules);
  void EnableAll(int option, int enabled);
  void ShowWhatTheModelHas();
  void Arrange();
  /// The rules of a column that cameras of a kind have.
  [[nodiscard]] ColumnRules RulesOf(Kind kind);

  Grid MSFG_MDect{*this, "MSFG_MDect"};
  Label Label1{*this, "Label1", Text(txt::kEnableOrDisable)};
  ListBox lEnble{*this, "lEnble"};
  ControlArray<OptionButton> optEnable{*this, "optEnable", 3};
  Label Label2{*this, "Label2", Text(txt::kActivityOrIntrusion)};
  ListBox lActInt{*this, "lActInt"};
  Label Label3{*this, "Label3", Text(txt::kSensitivity)};
  ListBox lSen{*this, "lSen"};
  Label Label6{*this, "Label6"};
  ListBox lRrate{*this, "lRrate"};
  Label Label7{*this, "Label7", Text(txt::kRelayOutput)};
  ListBox lRelay{*this, "lRelay"};
  Label Label4{*this, "Label4", Text(txt::kRejection)};
  ListBox lReject{*this, "lReject"};
  Label Label5{*this, "Label5", Text(txt::kTargetSize)};
  ListBox lstTarget{*this, "lstTarget"};
  Label Label8{*this, "Label8", Text(txt::kLinkToAlarm)};
  Slider slLnkAlm{*this, "slLnkAlm"};
  Label lbLnkAlm{*this, "lbLnkAlm"};
  Frame Frame1{*this, "Frame1", Text(txt::kIndicateDetection)};
  ControlArray<OptionButton> Option1{*this, "Option1", 2};
  Button cmdActGrid{*this, "cmdActGrid", Text(txt::kSetupActiveZones)};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};

  FieldGroup& settings_ = Once();
  LineGrid cameras_{*this,
                    MSFG_MDect,
                    Each(Id().MaxCam),
                    Objects().objstCam,
                    GridEditing::Release::kSelects,
                    LineGrid::Header::kTwoRows};
};

}  // namespace quorvel
