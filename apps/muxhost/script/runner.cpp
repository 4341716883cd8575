#include "muxhost/script/runner.h"

#include <algorithm>
#include <istream>
#include <ostream>
#include <string_view>
#include <utility>

#include "muxhost/script/commands.h"
#include "muxhost/script/parser.h"
#include "muxhost/script/report.h"
#include "muxhost/texts/languages.h"

namespace quorvel::muxhost {

ScriptRunner::ScriptRunner(std::istream& in, std::ostream& out, std::ostream& err, bool echo,
                           std::shared_ptr<const Language> language)
    : in_(in), out_(out), err_(err), echo_(echo), desk_(out) {
  desk_.say = SpeechIn(language);
  if (language != nullptr) Speak(desk_.platform, desk_.session, std::move(language));
  desk_.platform.at_modal = [this](Dialog& dialog) { return AtModal(dialog); };
}

int ScriptRunner::Run() {
  while (Step()) {
  }
  if (!failure_ && in_.bad()) failure_ = Failure{line_ + 1, "the script cannot be read"};
  if (!failure_) return 0;
  out_.flush();
  err_ << "line " << failure_->line << ": " << failure_->reason << '\n';
  return 1;
}

bool ScriptRunner::Step() {
  std::string text;
  if (failure_ || !std::getline(in_, text)) return false;
  const int line = ++line_;  // lines inside a modal dialog move line_ on
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (line == 1 && text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
  try {
    RunLine(text);
  } catch (const std::exception& error) {
    // A line inside a modal dialog fails before the one that opened it returns.
    if (!failure_) failure_ = Failure{line, error.what()};
  }
  ReportChanges();
  return !failure_;
}

void ScriptRunner::RunLine(const std::string& text) {
  const auto words = SplitWords(text);
  if (words.empty()) return;
  if (echo_) out_ << "> " << text << '\n';
  Execute(desk_, words);
  if (desk_.modal_depth == 0) desk_.platform.RunUntilIdle();
}

bool ScriptRunner::AtModal(Dialog& dialog) {
  if (failure_) {
    dialog.Close();
    return true;
  }
  if (desk_.attendant != nullptr && desk_.attendant->Window() == dialog.Name()) {
    return LetAttendantAct(dialog);
  }
  ReportChanges();
  ++desk_.modal_depth;
  const bool ran = Step();
  --desk_.modal_depth;
  return ran || failure_.has_value();
}

bool ScriptRunner::LetAttendantAct(Dialog& dialog) {
  try {
    return desk_.attendant->Act(dialog);
  } catch (...) {
    desk_.failure = std::current_exception();
    dialog.Close();
    return true;
  }
}

void ScriptRunner::ReportChanges() {
  for (Message& message : desk_.platform.TakeMessages()) {
    out_ << "message box " << DescribeMessage(message) << '\n';
    desk_.messages.push_back(std::move(message));
  }
  for (const std::string& name : desk_.platform.TakeStalled()) {
    out_ << "nothing more happens: " << name << " is closed by its window's button\n";
  }
  ReportWindows();
  const bool menu_is_up = desk_.platform.MenuIsUp();
  if (menu_is_up && !menu_was_up_) out_ << "menu is up\n";
  menu_was_up_ = menu_is_up;
}

void ScriptRunner::ReportWindows() {
  std::vector<std::string> now;
  for (const Dialog* dialog : desk_.platform.Windows()) {
    now.push_back(dialog->Name());
    if (std::find(windows_.begin(), windows_.end(), dialog->Name()) == windows_.end()) {
      out_ << "opened " << dialog->Name() << ' ' << Quoted(dialog->Caption()) << '\n';
    }
  }
  for (const std::string& name : windows_) {
    if (std::find(now.begin(), now.end(), name) == now.end()) out_ << "closed " << name << '\n';
  }
  windows_ = std::move(now);
}

}  // namespace quorvel::muxhost
