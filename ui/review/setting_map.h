#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/setting_list.h"
#include "quorvel/review.h"
#include "ui/review/unseen_editors.h"

namespace quorvel {

/// A control or a cell of an editor, and the settings behind it; or a setting that no editor shows,
/// or a bit of one, without a place.
struct MapEntry {
  struct Part {
    std::size_t setting;  ///< number in the SettingList
    int bit = -1;         ///< of a mask; else -1
  };
  static constexpr auto kNoLine = static_cast<std::size_t>(-1);
  SettingPosition at;
  std::vector<std::string> names;  ///< of the parts
  std::vector<Part> parts;
  std::size_t line = kNoLine;  ///< of UnseenEditors::Lines()
  int camera = -1;             ///< of a camera's line: which, 0-based
  bool shared = false;         ///< one control stands for the lines of several cameras
  bool ticks = false;          ///< a check box
  bool names_camera = false;   ///< its cell holds a camera's number, from 1
  bool is_first = false;       ///< no earlier entry shows any of its settings, or not all of them
};

/// Where the settings of a device stand in the editors of the menu, in the menu's order, then by
/// page, control and line. Where several show a setting, the first stands for it. What none shows
/// comes last, in block order.
class SettingMap {
 public:
  SettingMap(const UnseenEditors& editors, const SettingList& settings);

  [[nodiscard]] const std::vector<MapEntry>& Entries() const { return entries_; }
  /// The entries that have a setting, by the setting's number: at least one.
  [[nodiscard]] const std::vector<std::size_t>& Showing(std::size_t setting) const {
    return showing_.at(setting);
  }

 private:
  void MarkShared(const std::string& camera_word);
  void AddUnseen(const SettingList& settings);

  std::vector<MapEntry> entries_;
  std::vector<std::vector<std::size_t>> showing_;
};

}  // namespace quorvel
