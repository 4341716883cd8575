#include "ui/record/frm_record.h"

#include "ui/context.h"

namespace quorvel {

frm_Record::frm_Record(Context& context)
    : Editor(context, "frm_Record", txt::kRecord, {CommitRecord}),
      features_(RecordFeaturesOf(Id(), context.device.BlkImage.BlkCountOrZero())),
      rates_(context, Id(), Text(txt::kPps), Text(txt::kSpp), Text(txt::kTurbo)) {
  SetLayout(Column(Pages(), Row(Stretch(), cmdOK, cmdCancel)));
  Open(cmdOK, cmdCancel, &SSTab1);
}

Layout frm_Record::Pages() {
  const std::string settings = Text(txt::kOtherSettings);
  // Alone it needs no other name than the window's.
  const bool only_speeds = speed_page_.Exists() && !list_page_.Exists();
  return Tabs(
      SSTab1, Page{Text(txt::kRecordList), list_page_.Contents(), list_page_.Exists()},
      Page{Text(txt::kRecordQuality), quality_page_.Contents(), quality_page_.Exists()},
      Page{only_speeds ? Caption() : settings, speed_page_.Contents(), speed_page_.Exists()},
      Page{Text(txt::kEventSettings), events_page_.Contents(), events_page_.Exists()},
      Page{settings, recorder_page_.Contents(), recorder_page_.Exists()});
}

}  // namespace quorvel
