#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/record/lite/lite_camera_settings.h"
#include "ui/record/lite/lite_features.h"

namespace quorvel {

/// Record Settings of a lite model: of its cameras, of alarms, and of the device.
class LiteSettingsPage : public EditorPage {
 public:
  /// The record lock becomes a field of `lock`, which is written before the timers.
  LiteSettingsPage(Editor& editor, FieldGroup& lock);
  [[nodiscard]] Layout Contents();

 private:
  void BindEvents();
  void BindDevice(FieldGroup& lock);

  const LiteRecordFeatures features_ = LiteRecordFeaturesOf(Id());

  ControlArray<Label> Label2{*this, "Label2", LiteCameraSettings::kLabels};
  LiteCameraSettings cameras_;

  Slider sldPreEv{*this, "sldPreEv"};
  Label lbPreEv{*this, "lbPreEv"};
  ListBox lstPostEv{*this, "lstPostEv"};
  ComboBox cbActLnk{*this, "cbActLnk"};

  ComboBox cbAlRecMode{*this, "cbAlRecMode"};
  Slider sldPreAl{*this, "sldPreAl"};
  Label lbPreAl{*this, "lbPreAl"};
  ComboBox cbRecLock{*this, "cbRecLock"};
  Label lbAutoDelete{*this, "lbAutoDelete", Text(txt::kAutoDeleteMode)};
  ComboBox cbAutoDelete{*this, "cbAutoDelete"};
};

}  // namespace quorvel
