#pragma once

#include <vector>

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/line_grid.h"
#include "ui/record/full/rate_choices.h"
#include "ui/record/full/record_features.h"

namespace quorvel {

/// Event Settings: what starts the recording of each camera, for how long, how fast, and together
/// with which others. A rate that means nothing for the camera's type reads as dashes, one of a
/// camera that does not record as disabled; the rates behind stay.
class EventSettingsPage : public EditorPage {
 public:
  EventSettingsPage(Editor& editor, const RecordFeatures& features, const RateChoices& rates,
                    const RateToStored& rate_to_stored);
  [[nodiscard]] Layout Contents();

 private:
  static constexpr int kType = 1;
  struct RateColumn {
    int column;
    SettingRef stored;
    bool (*applies)(int type);
  };

  void BindTypes();
  void BindDurations();
  void BindRates(Choices rates, const RateToStored& rate_to_stored);
  void BindAssociations(bool available);
  /// Of a control that edits its column of all selected rows, wherever in them the user is.
  [[nodiscard]] ColumnRules OfRow(std::function<bool(int row)> takes);
  [[nodiscard]] int LineOf(int row) const { return row - MSFG_Events.HeaderRows(); }
  void ShowRatesOf(int row);

  Grid MSFG_Events{*this, "MSFG_Events"};
  Label lbEvType{*this, "lbEvType", Text(txt::kType)};
  ListBox lstEvType{*this, "lstEvType"};
  Label lbPreEvDur{*this, "lbPreEvDur", Text(txt::kPreEventDuration)};
  Slider slPreEvDur{*this, "slPreEvDur"};
  Label lbPreEv{*this, "lbPreEv"};  ///< where the slider stands
  Label lbPostEvDur{*this, "lbPostEvDur", Text(txt::kPostEventDuration)};
  Slider slPostEvDur{*this, "slPostEvDur"};
  Label lbPostEv{*this, "lbPostEv"};
  Label lbSeconds{*this, "lbSeconds", Text(txt::kTimeInSeconds)};
  Label lbEvRRate{*this, "lbEvRRate", Text(txt::kEventRecordRate)};
  ComboBox cbEvRRate{*this, "cbEvRRate"};
  Label lbTLRRate{*this, "lbTLRRate", Text(txt::kTimelapseRecordRate)};
  ComboBox cbTLRRate{*this, "cbTLRRate"};
  Label lbActRRate{*this, "lbActRRate", Text(txt::kActivityRecordRate)};
  ComboBox cbActRRate{*this, "cbActRRate"};
  Label lbEvAssCam{*this, "lbEvAssCam", Text(txt::kEventAssociatedCameras)};
  ComboBox cbEvAssCam{*this, "cbEvAssCam"};

  LineGrid cameras_{*this, MSFG_Events, Each(Id().MaxCam), Text(txt::kCameras),
                    GridEditing::Release::kSelects};
  std::vector<RateColumn> rate_columns_;
};

}  // namespace quorvel
