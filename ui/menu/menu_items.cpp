#include "ui/menu/menu_items.h"

#include <string>

namespace quorvel {

namespace {

MenuItem Entry(std::string name, std::string caption, std::vector<MenuItem> children = {}) {
  MenuItem item;
  item.name = std::move(name);
  item.caption = std::move(caption);
  item.children = std::move(children);
  return item;
}

MenuItem Separator(std::string name) {
  MenuItem item;
  item.name = std::move(name);
  item.separator = true;
  return item;
}

constexpr std::array<std::string_view, kLanguages> kLanguageItems = {
    "mnu_EngLang", "mnu_French", "mnu_German",  "mnu_Italian",   "mnu_Russian",
    "mnu_Polish",  "mnu_Czech",  "mnu_Finnish", "mnu_Hungarian", "mnu_Slovak",
    "mnu_Spanish", "mnu_Dutch",  "mnu_Danish"};

constexpr std::array<std::string_view, kLanguages> kLanguageNames = {
    "English", "French",    "German", "Italian", "Russian", "Polish", "Czech",
    "Finnish", "Hungarian", "Slovak", "Spanish", "Dutch",   "Danish"};

MenuItem Languages() {
  MenuItem factory = Entry("mnu_Factory", "Factory Settings");
  for (std::size_t code = 0; code < kLanguageItems.size(); ++code) {
    factory.children.push_back(
        Entry(std::string(kLanguageItems[code]), std::string(kLanguageNames[code])));
  }
  return factory;
}

}  // namespace

MenuItem MainMenuItems() {
  return Entry(
      "mnu_Main", "Main",
      {Entry("mnu_TimeDate", "Time/Date"), Entry("mnu_Sequence", "Sequencing"),
       Entry("mnu_Record", "Record"), Separator("spare1"), Entry("mnu_Alarm", "Alarm"),
       Entry("mnu_Macro", "Macro"),
       Entry("mnu_MDetection", "Motion Detection",
             {Entry("mnuMTSetup", "Setup Parameters"), Entry("mnuActGrid", "Setup Active zones")}),
       Separator("spare2"), Entry("mnu_CSetup", "Camera Setup"), Entry("mnuVCR", "VCR Setup"),
       Entry("mnu_VArchive", "Video Archive Setup"), Separator("spare3"),
       Entry("mnu_Telemetry", "Telemetry"), Entry("mnu_Comm", "Communications"),
       Entry("mnu_FPanelLock", "Front Panel Lock",
             {Entry("mnu_UnLock", "Unlock Keyboard"), Entry("mnu_LockKB", "Lock Keyboard")}),
       Languages(), Separator("spare4"), Entry("mnu_Exit", "Exit")});
}

std::string_view LanguageItem(int code) {
  return kLanguageItems.at(static_cast<std::size_t>(code));
}

std::vector<std::string_view> HiddenItems(const Identity& device) {
  std::vector<std::string_view> hidden;
  const char variant = static_cast<char>(device.VariantChar);
  if (device.IsMultiplexer()) {
    const bool basic = variant == 'A' || variant == 'C';
    hidden.push_back("mnu_VArchive");
    if (basic) hidden.push_back("mnu_Macro");
    if (basic || variant == '0' || (variant == '2' && device.RecorderKind != 2)) {
      hidden.push_back("mnu_Telemetry");
    }
    return hidden;
  }
  hidden.push_back("mnuVCR");
  if (device.ModelCode == 4 || device.ModelCode == 5) hidden.push_back("mnu_VArchive");
  if (device.IsTriplex() && device.LiteRecordModel) {
    hidden.push_back("mnu_Sequence");
    if (device.Model4L) {
      hidden.push_back("mnu_VArchive");
      hidden.push_back("mnu_Macro");
    }
  }
  if (variant == 'C' || variant == '0') hidden.push_back("mnu_Telemetry");
  return hidden;
}

void DisableItemsWithoutAction(MenuItem& item) {
  for (MenuItem& child : item.children) {
    if (!child.children.empty()) {
      DisableItemsWithoutAction(child);
    } else if (!child.separator && !child.on_choose) {
      child.enabled = false;
    }
  }
}

}  // namespace quorvel
