#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "quorvel/identity.h"
#include "quorvel/widgets.h"
#include "resources/text_table.h"

namespace quorvel {

/// The menu tree with its captions by design; most captions are replaced by texts of the catalogue.
[[nodiscard]] MenuItem MainMenuItems();

/// An item and the id of its text.
struct ItemText {
  std::string_view item;
  int id;
};
inline constexpr std::array kItemTexts = {ItemText{"mnu_Alarm", txt::kAlarms},
                                          ItemText{"mnu_Macro", txt::kMacro},
                                          ItemText{"mnu_Record", txt::kRecord},
                                          ItemText{"mnu_CSetup", txt::kCameraSetup},
                                          ItemText{"mnu_Comm", txt::kCommunications},
                                          ItemText{"mnu_German", txt::kGerman},
                                          ItemText{"mnu_French", txt::kFrench},
                                          ItemText{"mnu_EngLang", txt::kEnglish},
                                          ItemText{"mnu_Factory", txt::kFactorySettings},
                                          ItemText{"mnu_FPanelLock", txt::kFrontPanelLock},
                                          ItemText{"mnu_LockKB", txt::kLockKeyboard},
                                          ItemText{"mnu_Main", txt::kMain},
                                          ItemText{"mnu_MDetection", txt::kMotionDetection},
                                          ItemText{"mnu_Sequence", txt::kSequencing},
                                          ItemText{"mnuActGrid", txt::kSetupActiveZones},
                                          ItemText{"mnuMTSetup", txt::kSetupParameters},
                                          ItemText{"mnu_Telemetry", txt::kTelemetry},
                                          ItemText{"mnu_TimeDate", txt::kTimeAndDate},
                                          ItemText{"mnu_UnLock", txt::kUnlockKeyboard},
                                          ItemText{"mnuVCR", txt::kVcrSetup}};

/// Languages of the device; a language's code is its place in the submenu, 0 to 12.
inline constexpr int kLanguages = 13;
[[nodiscard]] std::string_view LanguageItem(int code);

/// The items that a menu hides because the device lacks what they open.
[[nodiscard]] std::vector<std::string_view> HiddenItems(const Identity& device);

/// Disables every item below `item` that neither acts nor opens a submenu.
void DisableItemsWithoutAction(MenuItem& item);

}  // namespace quorvel
