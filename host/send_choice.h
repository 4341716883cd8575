#pragma once

namespace quorvel {

/// What the user chose to send when START was pressed.
struct SendChoice {
  bool IncludeMacros = false;
  bool IncludeData = true;
  bool all_blocks = true;  ///< of the data; else the listed blocks
};

}  // namespace quorvel
