#include <ostream>
#include <utility>

#include "muxhost/review_text.h"
#include "muxhost/script/commands.h"
#include "muxhost/script/parser.h"

namespace quorvel::muxhost::commands {

namespace {

void ShowLines(Desk& desk, std::vector<ReviewLine> lines) {
  if (lines.empty()) desk.out << "review: nothing differs\n";
  for (const ReviewLine& line : lines) desk.out << InWords(line) << '\n';
  desk.review = std::move(lines);
}

void CompareWithFile(Desk& desk, const std::string& path) {
  FileReview review = desk.session.Control().Review(desk.platform.ReadFile(path));
  if (!review) throw ScriptError("not compared with " + path + ": " + review.cause);
  ShowLines(desk, std::move(review.lines));
}

void TakeBack(Desk& desk, const ReviewLine& line) {
  RequireUnlocked(desk);
  desk.out << (desk.session.Control().TakeBack(line) ? "taken back: " : "not taken back: ")
           << Place(line.at, line.settings) << '\n';
}

}  // namespace

void OpenEditorAt(Desk& desk, const SettingPosition& at, std::span<const std::string> settings) {
  RequireUnlocked(desk);
  if (!desk.session.Control().OpenAt(at)) {
    desk.out << "not opened: " << Place(at, settings) << '\n';
    return;
  }
  const Dialog& window = desk.platform.Window(at.window);
  const Widget* const control = window.FocusSentTo();
  desk.out << "opened " << window.Name();
  if (control != nullptr) desk.out << ", at " << control->Name();
  if (const auto* const grid = dynamic_cast<const Grid*>(control)) {
    desk.out << ' ' << grid->Row() << ',' << grid->Column();
  }
  desk.out << '\n';
}

void Review(Desk& desk, Words words) {
  if (words.size() == 1) return ShowLines(desk, desk.session.Control().Review());
  if (words.size() == 2) return CompareWithFile(desk, words[1]);
  if (words[1] != "take-back" && words[1] != "open") {
    throw ScriptError("review does not take " + words[1]);
  }
  if (desk.review.empty()) throw ScriptError("the last review has no lines");
  const int number = ToNumber("line", words[2], 1, static_cast<int>(desk.review.size()));
  const ReviewLine& line = desk.review.at(static_cast<std::size_t>(number - 1));
  if (words[1] == "take-back") return TakeBack(desk, line);
  OpenEditorAt(desk, line.at, line.settings);
}

}  // namespace quorvel::muxhost::commands
