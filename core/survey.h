#pragma once

#include <string_view>
#include <vector>

#include "core/layout/any_setting.h"
#include "core/record/mux_data.h"
#include "quorvel/settings.h"

namespace quorvel {

namespace layout {

/// Where a setting is kept, and what it holds.
struct Place : Slot {
  std::string name;
  std::string value;
};

}  // namespace layout

/// Which direction a survey looks: not every setting that is read is also written.
enum class Direction { kRead, kWritten };

/// Every setting that a device of this identity with `blocks` blocks has, in block order: where it
/// is kept and what `rec` holds. Change masks, device bytes and marks are told by their role.
/// Throws ImageError when a layout would leave its block.
[[nodiscard]] std::vector<layout::Place> SurveyRecord(MuxData& rec, Identity id, int blocks,
                                                      Direction direction = Direction::kRead);

/// Every place of the setting of that name: where it is kept, and where the device marks it.
[[nodiscard]] std::vector<layout::Place> Locate(MuxData& rec, const Identity& id, int blocks,
                                                std::string_view name);

/// Bits that two settings of a survey both claim, as "block 45 byte 13: A and B". There should be
/// none. A setting that another block's layout depends on may share its byte: on codes 1 to 5, byte
/// 13 of block 45 is also an external alarm output.
[[nodiscard]] std::vector<std::string> FindOverlaps(const std::vector<layout::Place>& places);

/// The settings whose name fits `pattern`, by name and value, in block order. A pattern may hold
/// "*" and "?"; one without them is looked for anywhere in the name; an empty one fits all. Case
/// does not matter.
[[nodiscard]] std::vector<SettingLine> ListSettings(MuxData& rec, const Identity& id, int blocks,
                                                    std::string_view pattern = {});

/// A record, the identity that its values belong to, and the number of blocks of its device.
struct Configuration {
  MuxData& rec;
  const Identity& id;
  int blocks;
};

}  // namespace quorvel
