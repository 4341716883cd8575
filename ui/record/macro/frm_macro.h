#pragma once

#include "ui/editing/editor.h"
#include "ui/record/macro/play_record_page.h"
#include "ui/record/macro/submacro_page.h"
#include "ui/record/macro/timed_macro_page.h"

namespace quorvel {

/// Macros: those that start at a time of day, the submacros, and on a multiplexer what PLAY and
/// RECORD start. Pages are written in the order of their declaration.
class frm_Macro : public Editor {
 public:
  explicit frm_Macro(Context& context);

 private:
  /// Basic multiplexers start macros and cannot edit them.
  [[nodiscard]] bool EditsSubmacros() const;

  TabStrip SST_Macro{*this, "SST_Macro"};
  TimedMacroPage timed_page_{*this};
  SubmacroPage submacro_page_{*this, EditsSubmacros()};
  PlayRecordPage link_page_{*this, EditsSubmacros() && Id().IsMultiplexer()};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
};

}  // namespace quorvel
