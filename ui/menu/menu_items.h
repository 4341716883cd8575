#pragma once

#include <array>
#include <string_view>

#include "quorvel/widgets.h"

namespace quorvel {

/// The menu tree with its captions by design; most captions are replaced by texts of the catalogue.
[[nodiscard]] MenuItem MainMenuItems();

/// An item and the id of its text.
struct ItemText {
  std::string_view item;
  int id;
};
inline constexpr std::array kItemTexts = {
    ItemText{"mnu_Alarm", 64},       ItemText{"mnu_Macro", 88},      ItemText{"mnu_Record", 101},
    ItemText{"mnu_CSetup", 121},     ItemText{"mnu_Comm", 125},      ItemText{"mnu_German", 151},
    ItemText{"mnu_French", 152},     ItemText{"mnu_EngLang", 153},   ItemText{"mnu_Factory", 154},
    ItemText{"mnu_FPanelLock", 155}, ItemText{"mnu_LockKB", 156},    ItemText{"mnu_Main", 157},
    ItemText{"mnu_MDetection", 159}, ItemText{"mnu_Sequence", 160},  ItemText{"mnuActGrid", 161},
    ItemText{"mnuMTSetup", 162},     ItemText{"mnu_Telemetry", 163}, ItemText{"mnu_TimeDate", 164},
    ItemText{"mnu_UnLock", 166},     ItemText{"mnuVCR", 167}};

/// Languages of the device; a language's code is its place in the submenu, 0 to 12.
inline constexpr int kLanguages = 13;
[[nodiscard]] std::string_view LanguageItem(int code);

/// Disables every item below `item` that neither acts nor opens a submenu.
void DisableItemsWithoutAction(MenuItem& item);

}  // namespace quorvel
