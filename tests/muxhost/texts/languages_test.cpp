#include "muxhost/texts/languages.h"

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>

#include "muxhost/texts/built_in_languages.h"
#include "quorvel/texts.h"
#include "tests/ui/editor_items.h"

namespace quorvel::muxhost {
namespace {

using Texts = std::set<std::string>;
using Lines = std::vector<std::string>;

struct Model {
  Byte code, cameras;
  char variant;
};
constexpr Model kModels[] = {{0, 16, '4'}, {0, 16, 'A'}, {1, 10, '1'}, {2, 16, '2'}, {6, 16, '2'},
                             {8, 9, '1'},  {15, 4, '0'}, {16, 4, 'C'}, {18, 16, '1'}};

/// The texts that a user must tell apart, by where they are.
using Places = std::map<std::string, Texts>;

void AddItems(const MenuItem& menu, Places& places) {
  for (const MenuItem& item : menu.children) {
    if (item.separator || !item.visible) continue;
    places["menu " + menu.name].insert(item.caption);
    AddItems(item, places);
  }
}

void AddWidget(const std::string& window, const Widget& widget, Places& places) {
  // The elements of an array are choices of one setting, as a rule.
  const std::string array = widget.Name().substr(0, widget.Name().find('('));
  const auto place = [&](const char* what) -> Texts& {
    return places[window + "." + array + what];
  };
  if (widget.Kind() == WidgetKind::kOptionButton || widget.Kind() == WidgetKind::kCheckBox) {
    place("").insert(widget.Caption());
  } else if (const auto* const choice = dynamic_cast<const ChoiceWidget*>(&widget)) {
    for (const std::string& item : choice->Items()) place(" items").insert(item);
  } else if (const auto* const tabs = dynamic_cast<const TabStrip*>(&widget)) {
    for (const Page& page : tabs->Pages()) place(" pages").insert(page.caption);
  } else if (const auto* const grid = dynamic_cast<const Grid*>(&widget)) {
    for (int i = 0; i < grid->Columns(); ++i) place(" columns").insert(grid->ColumnName(i));
  }
}

/// All editors of a model's menu.
Places PlacesOf(const Model& model, const std::shared_ptr<const Language>& language) {
  HeadlessPlatform platform;
  HostSession session(platform, [&](int milliseconds, std::function<void()> task) {
    platform.PostIn(milliseconds, std::move(task));
  });
  Speak(platform, session, language);
  EXPECT_TRUE(
      session.Control().LoadDefaults(model.cameras, model.code, "UNIT", model.variant).loaded);
  Places places;
  const auto open_menu = [&]() -> const MenuItem& {
    session.OpenMenu();
    platform.RunUntilIdle();
    return platform.Menu().Root();
  };
  AddItems(open_menu(), places);
  for (const std::string& item : EditorItems(open_menu())) {
    open_menu();
    EXPECT_EQ(platform.ChooseMenu(item), Answer::kDone);
    Dialog& editor = *platform.Windows().back();
    for (const Widget* const it : editor.Widgets()) AddWidget(editor.Name(), *it, places);
    editor.CloseWindow();
  }
  return places;
}

/// The texts that stand in the parentheses that end an opening of `Tr(` or the like.
Texts TextsInCall(const std::string& source, std::size_t at) {
  Texts texts;
  std::string text;
  bool quoted = false, any = false;
  for (int depth = 1; depth > 0; ++at) {
    const char c = source.at(at);
    if (c == '"') {
      quoted = !quoted;
      any = true;
    } else if (quoted) {
      text += source.at(c == '\\' ? ++at : at);
    } else if (std::isspace(static_cast<unsigned char>(c)) == 0) {
      if (any) texts.insert(text);
      any = false;
      text.clear();
      depth += c == '(' ? 1 : c == ')' ? -1 : 0;
    }
  }
  return texts;
}

/// What muxhost itself says in a window or a report, by source file.
std::map<std::string, Texts> TextsOfWindow() {
  namespace fs = std::filesystem;
  const std::regex call("\\b(Tr|ToSay|[sS]ay_?)\\(");
  std::map<std::string, Texts> found;
  for (const char* const folder : {"/apps/muxhost", "/platform/qt"}) {
    for (const auto& entry :
         fs::recursive_directory_iterator(QUORVEL_SOURCE_DIR + std::string(folder))) {
      if (entry.path().extension() != ".cpp") continue;
      std::ifstream file(entry.path());
      const std::string source{std::istreambuf_iterator<char>(file), {}};
      for (std::sregex_iterator it(source.begin(), source.end(), call), end; it != end; ++it) {
        found[entry.path().filename().string()].merge(
            TextsInCall(source, static_cast<std::size_t>(it->position() + it->length())));
      }
    }
  }
  return found;
}

char Mnemonic(const std::string& text) {
  const auto at = text.find('&');
  return at == std::string::npos
             ? ' '
             : static_cast<char>(std::toupper(static_cast<unsigned char>(text.at(at + 1))));
}

class Languages : public testing::TestWithParam<std::string> {
 protected:
  const std::shared_ptr<const Language> language_ = ChooseLanguage(GetParam(), {}).language;
};

TEST_P(Languages, AreComplete) {
  for (const auto& [code, json] : BuiltInLanguages()) {
    if (code == GetParam()) {
      EXPECT_EQ(ReadLanguage(json).findings, Lines{});
    }
  }
}

TEST_P(Languages, HaveAllThatTheWindowSaysWithLettersThatTellMenusApart) {
  Texts said, translated;
  for (const auto& [file, texts] : TextsOfWindow()) {
    std::map<char, char> english;
    for (const std::string& text : texts) {
      said.insert(text);
      if (!language_->window.contains(text)) continue;
      const char letter = Mnemonic(language_->window.at(text));
      if (letter == ' ') continue;
      const auto same = english.emplace(letter, Mnemonic(text)).first;
      EXPECT_EQ(same->second, Mnemonic(text)) << file << ": " << text;
    }
  }
  for (const auto& [text, translation] : language_->window) translated.insert(text);
  EXPECT_EQ(translated, said);
  EXPECT_NE(Mnemonic(language_->window.at("&File")), Mnemonic(language_->window.at("&Edit")));
  EXPECT_EQ(language_->code, GetParam());
}

TEST_P(Languages, AreNotEnglishButWhereTheWordsAreAlike) {
  Texts listed, alike;
  std::ifstream file(QUORVEL_SOURCE_DIR "/tests/muxhost/texts/alike.txt");
  for (std::string line; std::getline(file, line);) {
    const auto end = line.rfind(": ");
    if (end == std::string::npos) continue;
    if (line.find(GetParam(), end) != std::string::npos) listed.insert(line.substr(0, end));
  }
  for (const auto& [id, english] : BuiltInTexts()) {
    const auto text = language_->texts.find(id);
    if (text != language_->texts.end() && text->second == english) alike.insert(text->second);
  }
  EXPECT_EQ(alike, listed);
}

TEST_P(Languages, TellEveryChoiceApart) {
  std::size_t told = 0;
  for (const Model& model : kModels) {
    const Places translated = PlacesOf(model, language_);
    for (const auto& [place, english] : PlacesOf(model, nullptr)) {
      EXPECT_EQ(translated.at(place).size(), english.size())
          << int{model.code} << model.variant << ' ' << place << ' '
          << testing::PrintToString(translated.at(place));
      ++told;
    }
  }
  EXPECT_GT(told, 500U);
}

std::vector<std::string> Codes() {
  std::vector<std::string> codes;
  for (const auto& language : BuiltInLanguages()) codes.emplace_back(language.code);
  return codes;
}
INSTANTIATE_TEST_SUITE_P(All, Languages, testing::ValuesIn(Codes()),
                         [](const auto& code) { return code.param; });

TEST(ReadLanguage, PassesOverWhatWouldBreakAText) {
  // 25 "Incorrect Password!", 190 " days", 269 "Downloading block "; the rest is missing.
  const std::map<std::string, std::string> answers = {
      {R"("25": "K\u00fcche")", ""},
      {"\"25\": \"K\xFC"
       "che\"",
       "text 25 is not UTF-8: the English one is shown"},
      {R"("25": "")", "text 25 is empty: the English one is shown"},
      {R"("25": 7)", "text 25 is no text: the English one is shown"},
      {R"("25": "Falsch!\r")", "text 25 has other line breaks: the English one is shown"},
      {R"("25": "Falsch!\n")", "text 25 has a control character: the English one is shown"},
      {R"("25": "%1 Falsch {0}")", "text 25 has other placeholders: the English one is shown"},
      {R"("25": "100 % {a}")", ""},
      {R"("25": "&Falsch")", "text 25 has other mnemonics: the English one is shown"},
      {R"("190": "Tage")", "text 190 begins otherwise with a blank: the English one is shown"},
      {R"("269": "Block")", "text 269 ends otherwise with a blank: the English one is shown"},
      {R"("999": "x")", "there is no text 999: it is passed over"},
      {R"("25x": "x")", "there is no text 25x: it is passed over"}};
  for (const auto& [text, answer] : answers) {
    const Language language = ReadLanguage(R"({"language": "x", "texts": {)" + text + "}}");
    EXPECT_EQ(language.findings.size(), answer.empty() ? 1U : 2U) << text;
    EXPECT_EQ(language.texts.empty(), !answer.empty()) << text;
    if (!answer.empty()) {
      EXPECT_EQ(language.findings.front(), answer);
    }
  }
  const std::map<std::string, std::string> window = {
      {R"("Cancel": "Abbrechen")", ""},
      {R"("Close": "&Zu")", "the window's text for \"Close\" has a mnemonic too many"},
      {R"("&Find:": "Suchen:")", ""},
      {R"("%1 of %2": "%1")", "the window's text for \"%1 of %2\" has other placeholders"},
      {R"("Cancle": "x")", "the window has no text \"Cancle\""}};
  for (const auto& [text, answer] : window) {
    const Language language =
        ReadLanguage(R"({"language": "x", "texts": {}, "window": {)" + text + "}}");
    EXPECT_EQ(language.window.empty(), !answer.empty()) << text;
    EXPECT_EQ(language.findings.at(1).substr(0, answer.size()), answer);
  }
  const Lines of_list = ReadLanguage(R"({"language": "x", "texts": {}, "window": ["a"]})").findings;
  EXPECT_EQ(of_list.at(1).substr(0, 27), "\"window\" holds no texts by ");
  const Lines missing =
      ReadLanguage(R"({"language": "x", "texts": {"0": "a", "2": "b"}})").findings;
  EXPECT_EQ(missing.front().substr(0, 29), "missing texts: 1 3-332 1000-1");
  for (const char* const json : {"", "[]", "{", R"({"language": "x"})", R"({"texts": {}})"}) {
    EXPECT_THROW(static_cast<void>(ReadLanguage(json)), std::runtime_error) << json;
  }
}

TEST(ChooseLanguage, FollowsTheSystem) {
  const std::map<Lines, std::string> locales = {{{"de_AT.UTF-8"}, "Deutsch"},
                                                {{"nl-NL", "fr-BE", "de"}, "Fran\u00e7ais"},
                                                {{"en-GB", "de"}, ""},
                                                {{"C", "es"}, "Espa\u00f1ol"},
                                                {{"POSIX"}, ""},
                                                {{}, ""}};
  for (const auto& [asked, name] : locales) {
    const auto language = ChooseLanguage("system", asked).language;
    EXPECT_EQ(language == nullptr ? "" : language->name, name);
  }
}

}  // namespace
}  // namespace quorvel::muxhost
