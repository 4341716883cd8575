#include "ui/record/full/record_list_page.h"

namespace quorvel {

namespace {
constexpr int kPlaces = 30;  // of those that the device has, the ones that can be edited
constexpr int kNoCamera = 255;
}  // namespace

RecordListPage::RecordListPage(Editor& editor, const RecordFeatures& features)
    : EditorPage(editor, features.list_page),
      timers_(editor, MSFlGrid_RecList,
              {{0, Words().cnstrOFF}, {1, Words().cnstrON}, {2, Text(txt::kDel)}},
              features.timers) {
  lbCamera.SetVisible(!features.timers);
  lCamera.SetVisible(!features.timers);
  if (Exists() && !features.timers) BindList();
}

void RecordListPage::BindList() {
  MSFlGrid_RecList.SetSpokenName(Text(txt::kRecordList));
  Choices cameras = Choices::Numbers(1, Id().MaxCam, 0);
  cameras.Add(kNoCamera, Words().cnstrNone).Reads(kNoCamera, "");
  list_.emplace(*this, MSFlGrid_RecList, Each(kPlaces), Text(txt::kIndex),
                GridEditing::Release::kSelects);
  list_->CameraColumn(Text(txt::kCameras), lCamera, cameras, At(&MuxData::RecSeqLst),
                      {.empty = kNoCamera});
}

Layout RecordListPage::Contents() {
  return Row(MSFlGrid_RecList, Labelled(lbCamera, lCamera), timers_.Controls());
}

}  // namespace quorvel
