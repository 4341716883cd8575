#include "muxhost/script/commands.h"
#include "muxhost/script/parser.h"

namespace quorvel::muxhost::commands {

namespace {

constexpr int kMostPlaces = 1000;
constexpr int kLongestWait = 3'600'000;

void Require(const VerbAnswer& done) {
  if (done.answer != Answer::kDone) throw ScriptError(done.cause);
}

int Place(const char* what, const std::string& text) {
  return ToNumber(what, text, 0, kMostPlaces);
}

}  // namespace

void Menu(Desk& desk, Words /*words*/) {
  RequireUnlocked(desk);
  desk.session.OpenMenu();
}

void Choose(Desk& desk, Words words) {
  const std::string& name = words[1];
  const MenuItem item = desk.platform.Menu().Item(name);
  if (item.separator) throw ScriptError(name + " is a separator");
  if (!item.children.empty()) throw ScriptError(name + " opens a submenu");
  const Answer answer = desk.platform.ChooseMenu(name);
  if (answer != Answer::kDone) throw ScriptError(name + " " + Describe(answer));
}

void Dismiss(Desk& desk, Words /*words*/) {
  if (!desk.platform.MenuIsUp()) throw ScriptError("no menu is up");
  desk.platform.DismissMenu();
}

void Click(Desk& desk, Words words) { Require(desk.platform.User().Click(words[1])); }

void Type(Desk& desk, Words words) { Require(desk.platform.User().Type(words[1], words[2])); }

void Select(Desk& desk, Words words) {
  Require(desk.platform.User().Select(words[1], Place("index", words[2])));
}

void Slide(Desk& desk, Words words) {
  Require(desk.platform.User().Slide(words[1], ToNumber("value", words[2])));
}

void Pick(Desk& desk, Words words) { Require(desk.platform.User().Pick(words[1], words[2])); }

void Press(Desk& desk, Words words) {
  const int row = Place("row", words[2]);
  Require(desk.platform.User().Press(words[1], row, Place("column", words[3])));
}

void Release(Desk& desk, Words words) {
  const int first = Place("first row", words[2]);
  Require(desk.platform.User().Release(words[1], first, Place("last row", words[3])));
}

void Mark(Desk& desk, Words words) {
  Require(desk.platform.User().Mark(words[1], Place("row", words[2])));
}

void Empty(Desk& desk, Words words) { Require(desk.platform.User().Empty(words[1])); }

void Paste(Desk& desk, Words words) { Require(desk.platform.User().Paste(words[1], words[2])); }

void StepBack(Desk& desk, Words words) {
  if (words.size() > 1) return Undo(desk, words);
  Require(desk.platform.User().Undo());
}

void StepForth(Desk& desk, Words words) {
  if (words.size() > 1) return Redo(desk, words);
  Require(desk.platform.User().Redo());
}

void PutBack(Desk& desk, Words words) {
  const bool to_device = words.back() == "device";
  const PutBackTo to = to_device ? PutBackTo::kDevice : PutBackTo::kOpened;
  if (to_device) words = words.first(words.size() - 1);
  const NamedUser user = desk.platform.User();
  if (words.size() == 2) return Require(user.PutBack(words[1], to));
  if (words.size() != 4) throw ScriptError("a cell is told by its row and column");
  const int row = Place("row", words[2]);
  Require(user.PutBackCell(words[1], row, Place("column", words[3]), to));
}

void Tab(Desk& desk, Words words) {
  Require(desk.platform.User().TurnPage(words[1], Place("page", words[2])));
}

void Close(Desk& desk, Words words) {
  Require(desk.platform.User().CloseWindow(words.size() > 1 ? words[1] : ""));
}

void AnswerNext(Desk& desk, Words words) {
  if (words[1] == "file" && words.size() == 3) {
    const bool cancel = words[2] == "cancel";
    desk.platform.AnswerNextFile(cancel ? std::nullopt : std::optional(words[2]));
    return;
  }
  const bool ok = words[1] == "ok";
  if ((!ok && words[1] != "cancel") || words.size() > 2) {
    throw ScriptError("answer takes ok, cancel or a file, not " + words.back());
  }
  desk.platform.AnswerNext(ok);
}

void Wait(Desk& desk, Words words) {
  desk.platform.Advance(ToNumber("time", words[1], 0, kLongestWait));
}

}  // namespace quorvel::muxhost::commands
