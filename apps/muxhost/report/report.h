#pragma once

#include <string>

#include "muxhost/texts/speech.h"
#include "quorvel/clock_time.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::muxhost {

/// What stands at the top of a report.
struct ReportHead {
  std::string file;  ///< that is open; empty for none: what the control says of its configuration
  LocalTime made;
  Speech say = InEnglish;
};

/// A configuration on paper: HTML that needs nothing beside it. First whose it is and what was
/// changed since it came, then every setting by editor and page in the words of the dialogs, tables
/// as tables, what was changed marked with what it was; last the blocks with their bytes. Empty
/// without an image.
[[nodiscard]] std::string HtmlReport(MainMenuCtrl& control, const ReportHead& head);

}  // namespace quorvel::muxhost
