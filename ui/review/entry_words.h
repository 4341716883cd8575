#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/setting_list.h"
#include "quorvel/review.h"
#include "ui/review/setting_map.h"
#include "ui/review/unseen_editors.h"

namespace quorvel {

/// A configuration: what its settings hold, and the editors that show it.
struct Side {
  std::vector<layout::SettingValue> values;  ///< by number in the SettingList
  std::vector<bool> lacks = {};              ///< settings that it does not have; empty for none
  const UnseenEditors* editors = nullptr;    ///< none where nothing is to be put into words
};

/// Whether a setting, or the bits of it that `mask` has, are others on two sides that both have it.
[[nodiscard]] bool Differ(const Side& one, const Side& other, std::size_t setting, int mask = -1);
/// The same of a part of an entry, and of any of them.
[[nodiscard]] bool Differ(const Side& one, const Side& other, const MapEntry::Part& part);
[[nodiscard]] bool Differ(const Side& one, const Side& other, const MapEntry& entry);

/// What each setting of an entry holds, in StoredForm.
[[nodiscard]] std::vector<std::string> StoredIn(const MapEntry& entry, const Side& side);
/// The blocks that carry settings of an entry: all, or those that differ from another side.
[[nodiscard]] std::vector<Byte> BlocksOf(const MapEntry& entry, const SettingList& settings,
                                         const Side& side, const Side* other = nullptr);

/// Puts what stands at the entries of a map into words.
class EntryWords {
 public:
  EntryWords(const SettingList& settings, Context& context);

  /// How an entry reads. What its control has no words for reads as settings are listed.
  [[nodiscard]] std::string Of(const MapEntry& entry, const Side& side) const;
  /// Whether its control shows the same on both sides.
  [[nodiscard]] static bool ReadAlike(const MapEntry& entry, const Side& one, const Side& other);
  /// How it reads on two sides that differ: told apart also where the control does not.
  [[nodiscard]] std::pair<std::string, std::string> Of(const MapEntry& entry, const Side& one,
                                                       const Side& other) const;
  /// Where it is; a camera comes with the title that it has on that side.
  [[nodiscard]] SettingPosition Place(const MapEntry& entry, const Side& side) const;

 private:
  /// The title of a camera, from 0, behind its number: " "Door""; empty for one that is not there.
  [[nodiscard]] std::string TitleOn(const Side& side, int camera) const;
  [[nodiscard]] static std::string Listed(const MapEntry& entry, const Side& side);

  const SettingList& settings_;
  const Platform& platform_;
  std::string yes_, no_;
};

}  // namespace quorvel
