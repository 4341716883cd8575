#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "quorvel/export.h"

namespace quorvel {

// All texts are UTF-8, in the language of the control's texts.

/// Where an installer finds a setting. One that no editor of the menu shows has an empty `item`.
struct SettingPosition {
  std::string item;    ///< of the menu: "mnu_CSetup"
  std::string window;  ///< the editor's name: "frm_CameraSetup"
  std::string editor;  ///< its caption: "Camera Setup"
  /// Caption of the page; empty in an editor without pages. This and the label come with single
  /// blanks and without a colon at the end.
  std::string page;
  std::string label;    ///< what the control or the column is called: "Gain"
  std::string line;     ///< what the row is called: "Camera 3 "Front door"", "Event 1"; else empty
  std::string control;  ///< its name: "MSFG_Cam"; the grid's for a cell
  int row = -1;         ///< of a cell, counted with the header; else -1
  int column = -1;
  bool operator==(const SettingPosition&) const = default;
};

/// A control or a cell that differs from what it is compared with, or what no editor shows.
struct ReviewLine {
  SettingPosition at;
  /// What stands behind it: "CamInfo(2).SignalGain"; bit 3 of a mask as "Mask bit 3".
  std::vector<std::string> settings;
  /// What each of them held, for TakeBack: a number in digits, a text in the device's characters.
  std::vector<std::string> stored;
  /// As the dialog would show it, with the unit where the dialog has none; where it has no words,
  /// and for a setting without an editor, as MainMenuCtrl::Settings tells it.
  std::string old_value;
  std::string new_value;
  std::vector<std::uint8_t> blocks;  ///< that carry what differs, in rising order
  bool writable = true;  ///< false where only the device writes it: TakeBack refuses the line
  bool operator==(const ReviewLine&) const = default;
};

/// What a comparison with a file has found.
struct FileReview {
  bool compared = false;
  std::string cause;  ///< in words: why it was not compared; else empty
  std::vector<ReviewLine> lines;
  explicit operator bool() const { return compared; }
};

/// A control or a cell and what it shows, or a setting, or a bit of a mask, that no editor shows.
struct SettingRow {
  SettingPosition at;
  std::vector<std::string> settings;  ///< as in ReviewLine
  std::vector<std::string> stored;    ///< what each of them holds
  std::string value;                  ///< as in ReviewLine
  std::vector<std::uint8_t> blocks;
  bool differs_from_device = false;
  bool differs_from_factory = false;
};

}  // namespace quorvel
