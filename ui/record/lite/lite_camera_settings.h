#pragma once

#include <vector>

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/line_grid.h"
#include "ui/record/lite/lite_features.h"

namespace quorvel {

/// Quality, rates and event type of a lite model's cameras: camera by camera in a table or, on
/// models that can, one set for all cameras. The table holds the settings in either case: a control
/// for all cameras shows what they have in common, is blank where they differ, and what is chosen
/// in it goes into every row. So nothing is lost when the user changes between the two.
class LiteCameraSettings : public EditorPage {
 public:
  /// Labels of Label2, which the page shares with the rest of its editor's.
  enum LabelOf {
    kLock,
    kQualityOfAll,
    kTimeLapseOfAll,
    kActivityOfAll,
    kEventOfAll,
    kAlarmRate,
    kPreEvent,
    kPostEvent,
    kPreAlarm,
    kAlarmMode,
    kActivityLink,
    kLabels,
  };
  LiteCameraSettings(Editor& editor, const LiteRecordFeatures& features,
                     ControlArray<Label>& labels);

  /// A line a camera, written before the rate of alarms; others may add to it.
  [[nodiscard]] FieldGroup& Lines() { return lines_; }
  [[nodiscard]] Layout Contents();

 private:
  /// Columns of the table.
  enum TableColumn { kQuality = 1, kTimeLapse, kEvent, kType, kActivity };
  /// Labels of Label3, beside the table.
  enum CellLabel { kOfActivity, kOfEvent, kOfTimeLapse, kOfType, kOfQuality, kCellLabels };
  /// A column, and the control that sets it for all cameras.
  struct Setting {
    int column;
    Choices choices;
    ChoiceWidget& for_all;
  };

  [[nodiscard]] Choices Rates(std::initializer_list<int> offered, bool event) const;
  void AddColumns();
  void BindTable();
  void Bind(int column, ChoiceWidget& of_cell, const Choices& choices, ChoiceWidget& for_all,
            const SettingRef& setting, ColumnRules rules);
  void BindForAll();
  [[nodiscard]] ColumnRules RulesOfRate(int column);

  void ShowOpened();
  void SetShared(bool shared);
  void ShowForAll();
  void NameEventList();

  [[nodiscard]] bool Records(int row) const;
  [[nodiscard]] bool Applies(int row, int column) const;
  [[nodiscard]] bool FastestIsTaken(int column) const;
  [[nodiscard]] int Common(int column) const;
  void ShowRates(int row);
  void PutIntoAll(int column, int value);

  const LiteRecordFeatures& features_;
  bool shared_ = false;
  std::vector<bool> records_;  ///< of each camera: it is enabled and has a picture
  ControlArray<Label>& Label2;

  CheckBox chkIndividual{*this, "chkIndividual", Text(kTextIndividualSettings)};

  // Camera by camera.
  Grid msfgRecSS{*this, "msfgRecSS"};
  ControlArray<Label> Label3{*this, "Label3", kCellLabels};
  ListBox lstRecQuality{*this, "lstRecQuality"};
  ListBox lstEvTlSet{*this, "lstEvTlSet"};

  // Of the current cell, or of all cameras.
  ComboBox cbTL{*this, "cbTL"};
  ComboBox cbEvent{*this, "cbEvent"};
  ComboBox cbAct{*this, "cbAct"};

  // All cameras.
  ComboBox cbRecQuality{*this, "cbRecQuality"};
  Frame Frame1{*this, "Frame1", Text(txt::kEventOrTimelapseSetting)};
  Grid msfgEvTL{*this, "msfgEvTL"};
  Label lbEvTL{*this, "lbEvTL", Text(txt::kEventOrTimelapse)};
  ListBox lstEvTL{*this, "lstEvTL"};
  ComboBox cbAlm{*this, "cbAlm"};

  FieldGroup& lines_ = Each(Id().MaxCam);
  LineGrid table_{*this, msfgRecSS, lines_, Text(txt::kCameras), GridEditing::Release::kSelects};
  GridEditing type_of_all_{msfgEvTL, GridEditing::Release::kSelects};
  std::vector<Setting> settings_;
  Choices quality_, types_, time_lapse_, event_;
  const std::string pps_ = Text(txt::kPps);
};

}  // namespace quorvel
