#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/record/full/rate_choices.h"
#include "ui/record/full/record_features.h"

namespace quorvel {

/// Other Settings of recorders: the rate of alarms, what happens when the disk is full, the record
/// lock, how long recordings are kept, and turbo.
class RecorderSettingsPage : public EditorPage {
 public:
  /// The record lock is a field of `lock`: it is written before the pages between.
  RecorderSettingsPage(Editor& editor, const RecordFeatures& features, const RateChoices& rates,
                       FieldGroup& lock);
  /// What a rate that was chosen is stored as: where turbo is being switched, none stays turbo.
  [[nodiscard]] int RateToStore(int rate) const;
  [[nodiscard]] Layout Contents();

 private:
  void BindRecordMode(FieldGroup& settings, bool third_mode);
  void BindTurbo(bool exists);

  Label lbAlRRate{*this, "lbAlRRate", Text(txt::kGlobalAlarmRecordRate)};
  ListBox lstAlRRate{*this, "lstAlRRate"};
  Frame frameRecMode{*this, "frameRecMode", Text(txt::kRecordMode)};
  ControlArray<OptionButton> optRecMode{*this, "optRecMode", 3};
  Frame frameRecLock{*this, "frameRecLock", Text(txt::kRecordLock)};
  ControlArray<OptionButton> optTriplexRLk{*this, "optTriplexRLk", 2};
  Frame frameAutoDelete{*this, "frameAutoDelete", Text(txt::kAutoDeleteMode)};
  ComboBox cbAutoDelete{*this, "cbAutoDelete"};
  Frame frameTurbo{*this, "frameTurbo", Text(txt::kTurboMode)};
  ControlArray<OptionButton> opTurboMode{*this, "opTurboMode", 2};

  Field* turbo_ = nullptr;
};

}  // namespace quorvel
