#include "ui/menu/menu_editors.h"

#include <algorithm>
#include <array>

#include "ui/record/frm_nrec_lite.h"
#include "ui/record/frm_record.h"
#include "ui/record/frm_sequencing.h"
#include "ui/record/macro/frm_macro.h"
#include "ui/setup/alarm/frm_alarm.h"
#include "ui/setup/frm_camera_setup.h"
#include "ui/setup/frm_comm.h"
#include "ui/setup/frm_mdetect.h"
#include "ui/setup/frm_telemetry.h"
#include "ui/setup/frm_time_date.h"
#include "ui/setup/frm_varchive.h"
#include "ui/setup/frm_vcr.h"

namespace quorvel {

namespace {

template <class AnEditor>
std::shared_ptr<Editor> Create(Context& context) {
  return std::make_shared<AnEditor>(context);
}

bool EveryDevice(const Identity& /*device*/) { return true; }
bool FullDevice(const Identity& device) { return !device.LiteRecordModel; }
bool LiteDevice(const Identity& device) { return device.LiteRecordModel; }

constexpr std::array kEditors = {
    MenuEditor{"mnu_Record", Create<frm_Record>, FullDevice},
    MenuEditor{"mnu_Record", Create<frm_NRecLite>, LiteDevice},
    MenuEditor{"mnu_Alarm", Create<frm_Alarm>, EveryDevice},
    MenuEditor{"mnuMTSetup", Create<frm_MDetect>, EveryDevice},
    MenuEditor{"mnu_CSetup", Create<frm_CameraSetup>, EveryDevice},
    MenuEditor{"mnuVCR", Create<frm_VCR>, EveryDevice},
    MenuEditor{"mnu_VArchive", Create<frm_VArchive>, EveryDevice},
    MenuEditor{"mnu_Sequence", Create<frm_Sequencing>, EveryDevice},
    MenuEditor{"mnu_Macro", Create<frm_Macro>, EveryDevice},
    MenuEditor{"mnu_Telemetry", Create<frm_Telemetry>, EveryDevice},
    MenuEditor{"mnu_TimeDate", Create<frm_TimeDate>, EveryDevice, "TimeDate Error: "},
    MenuEditor{"mnu_Comm", Create<frm_Comm>, EveryDevice},
};

}  // namespace

std::span<const MenuEditor> MenuEditors() { return kEditors; }

const MenuEditor* EditorOf(std::string_view item, const Identity& device) {
  const auto found = std::find_if(kEditors.begin(), kEditors.end(), [&](const MenuEditor& it) {
    return it.item == item && it.serves(device);
  });
  return found == kEditors.end() ? nullptr : &*found;
}

}  // namespace quorvel
