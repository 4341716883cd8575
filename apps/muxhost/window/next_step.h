#pragma once

#include <QString>
#include <cstddef>
#include <optional>
#include <vector>

#include "muxhost/window/command_box.h"
#include "quorvel/byte.h"
#include "quorvel/transfer.h"

namespace quorvel::muxhost {

/// How far the user has got with configuring a device.
struct Situation {
  CommandBox::State commands;
  std::size_t unwritten = 0;  ///< blocks with changes that the device has not got
  std::size_t failed = 0;
  std::size_t verified = 0;
  bool all_listed = true;    ///< unwritten blocks are listed as modified
  bool unsaved = false;      ///< an open file was edited since it was saved
  bool only_macros = false;  ///< unwritten and failed are blocks that come with the macros alone
  ImageOrigin origin = ImageOrigin::kDevice;  ///< of the configuration
  /// A command given last that was to bring a configuration and has brought none.
  std::optional<Command> missed = {};
  std::vector<Byte> lacking = {};  ///< blocks of the device that the configuration lacks
};

/// What is sensible next.
struct NextStep {
  QString hint;                  ///< one line
  std::optional<Command> press;  ///< nothing when it is not one of the commands
};

[[nodiscard]] NextStep NextStepIn(const Situation& situation);

}  // namespace quorvel::muxhost
