#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor.h"
#include "ui/record/lite/lite_settings_page.h"
#include "ui/record/record_timers.h"

namespace quorvel {

/// Record of the lite models: the timers, and what is recorded of cameras and alarms.
class frm_NRecLite : public Editor {
 public:
  explicit frm_NRecLite(Context& context);

 private:
  TabStrip SSTab_RecLite{*this, "SSTab_RecLite"};
  FieldGroup& lock_ = Once();  ///< the record lock, which is written before the timers
  Grid MSFG_RecTimer{*this, "MSFG_RecTimer"};
  RecordTimers timers_{*this, MSFG_RecTimer, OffOn()};
  LiteSettingsPage settings_{*this, lock_};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
};

}  // namespace quorvel
