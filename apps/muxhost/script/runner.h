#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "muxhost/script/desk.h"
#include "muxhost/texts/language.h"

namespace quorvel::muxhost {

/// Runs a script, one command a line, against a host without a screen, and prints what happens.
///
/// Between two lines everything that is under way comes to rest. A line that opens a modal dialog
/// returns when the dialog is closed: the lines after it run inside the dialog's loop meanwhile,
/// and there time stands still but for `wait`. A modal dialog still open at the end of the script
/// is closed by its window's button once nothing is left to happen.
class ScriptRunner {
 public:
  /// Lines come from `in` as they are needed. With `echo`, each is printed before it runs.
  /// `language` is that of the component's texts; none: English.
  ScriptRunner(std::istream& in, std::ostream& out, std::ostream& err, bool echo = false,
               std::shared_ptr<const Language> language = nullptr);

  /// What makes a PDF file of HTML, for `report`.
  void MakePdfWith(std::vector<std::uint8_t> (*make)(const std::string& html)) {
    desk_.make_pdf = make;
  }

  /// Runs the script to its end, or to the first line that cannot be carried out, which is told on
  /// `err` as "line N: REASON". Returns the exit status, 0 or 1.
  int Run();

 private:
  struct Failure {
    int line;
    std::string reason;
  };

  /// Runs the next line; false when there is none or a line has failed.
  bool Step();
  void RunLine(const std::string& text);
  bool AtModal(Dialog& dialog);
  bool LetAttendantAct(Dialog& dialog);
  void ReportChanges();
  void ReportWindows();

  std::istream& in_;
  std::ostream& out_;
  std::ostream& err_;
  bool echo_;
  int line_ = 0;
  std::optional<Failure> failure_;
  /// Names of the windows on screen, as last reported.
  std::vector<std::string> windows_;
  bool menu_was_up_ = false;
  Desk desk_;
};

}  // namespace quorvel::muxhost
