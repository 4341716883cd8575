#pragma once

#include "ui/editing/editor.h"
#include "ui/record/full/event_settings_page.h"
#include "ui/record/full/rate_choices.h"
#include "ui/record/full/record_features.h"
#include "ui/record/full/record_list_page.h"
#include "ui/record/full/record_quality_page.h"
#include "ui/record/full/record_speed_page.h"
#include "ui/record/full/recorder_settings_page.h"

namespace quorvel {

/// Recording, on all models but the lite ones. Each page is a class of its own; RecordFeatures
/// tells what a model shows of them. Pages are written in the order of their declaration, but for
/// the record lock.
class frm_Record : public Editor {
 public:
  explicit frm_Record(Context& context);

 private:
  [[nodiscard]] Layout Pages();

  RecordFeatures features_;
  RateChoices rates_;

  TabStrip SSTab1{*this, "SSTab1"};
  RecordQualityPage quality_page_{*this, features_};
  FieldGroup& record_lock_ = Once();
  RecordListPage list_page_{*this, features_};
  RecordSpeedPage speed_page_{*this, features_};
  EventSettingsPage events_page_{*this, features_, rates_,
                                 [this](int rate) { return recorder_page_.RateToStore(rate); }};
  RecorderSettingsPage recorder_page_{*this, features_, rates_, record_lock_};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
};

}  // namespace quorvel
