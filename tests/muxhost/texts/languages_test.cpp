#include "muxhost/texts/languages.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
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
