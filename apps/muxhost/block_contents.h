#pragma once

#include <span>
#include <string>
#include <vector>

#include "muxhost/texts/speech.h"
#include "quorvel/byte.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::muxhost {

/// What is known of one block.
struct BlockContents {
  /// Its 16 bytes in the control, as edited; empty when the control has no such block.
  std::vector<Byte> in_control;
  std::vector<Byte> in_device;        ///< the same in the device
  std::vector<SettingLine> settings;  ///< those that live in it, with their values as edited
};

/// What block `n` (from 1) holds. `device` is the device's image.
[[nodiscard]] BlockContents ContentsOf(const MainMenuCtrl& control, std::span<const Byte> device,
                                       int n);
/// The same in lines of text: "In the control:", "01 02 ...", "AlarmMode = 2". Without a device,
/// what stands in for it is what the control held at first: "As opened:".
[[nodiscard]] std::string InWords(const BlockContents& contents, bool has_device = true,
                                  const Speech& say = InEnglish);

}  // namespace quorvel::muxhost
