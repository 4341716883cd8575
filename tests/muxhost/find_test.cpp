#include <gtest/gtest.h>

#include "muxhost/find/csv.h"
#include "quorvel/headless_platform.h"

namespace quorvel::muxhost {
namespace {

TEST(Find, FoldsTheLettersOfTheLanguages) {
  const std::pair<const char*, const char*> cases[] = {
      {"Größe ÄÖÜ", "grosse aou"},       {"Señal ¿Año?", "senal ¿ano?"},
      {"Œuvre déjà Ÿ", "oeuvre deja y"}, {"più È", "piu e"},
      {"Łódź Čaj", "lodz caj"},          {"日本 Ω", "日本 Ω"},
      {"cut \xC3", "cut \xC3"},
  };
  for (const auto& [text, folded] : cases) EXPECT_EQ(Fold(text), folded);
}

TEST(Find, KnowsHowNearAWordIs) {
  const struct {
    const char *text, *word;
    std::optional<int> distance;
  } cases[] = {
      {"Gain", "gain", 0},       {"Gains", "gain", 1},       {"Signal Gain", "gain", 2},
      {"SignalGain", "gain", 2}, {"Old Gains", "gain", 3},   {"Again", "gain", 4},
      {"Against", "gain", 5},    {"Again, gain", "gain", 2}, {"Dwell", "gain", {}},
      {"Camera 13", "3", {}},    {"CamInfo(3)", "3", 2},     {"Camera 30", "3", 3},
  };
  for (const auto& it : cases) EXPECT_EQ(FoldedText(it.text).Distance(it.word), it.distance);
}

TEST(Find, ListsTheNearestFirst) {
  std::vector<SettingRow> rows(4);
  const std::pair<const char*, const char*> places[] = {{"Event 3", "Camera 1"},
                                                        {"Regain", "Camera 13"},
                                                        {"Old gain", "Camera 3"},
                                                        {"Gain", "Camera 30"}};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i].at.label = places[i].first;
    rows[i].at.line = places[i].second;
  }
  rows[3].blocks = {47, 48};
  rows[1].value = "47";
  const SettingSearch search(rows);
  using Numbers = std::vector<std::size_t>;
  EXPECT_EQ(search.Find("GAIN"), (Numbers{3, 2, 1}));
  EXPECT_EQ(search.Find("camera 3"), (Numbers{2, 3, 0}));
  EXPECT_EQ(search.Find("3 camera"), (Numbers{0, 2, 3}));
  EXPECT_EQ(search.Find("47"), (Numbers{1, 3}));
  EXPECT_EQ(search.Find("gain Blocks 47"), (Numbers{3}));
  EXPECT_EQ(search.Find("Gain > Camera 3"), (Numbers{3, 2}));
  EXPECT_EQ(search.Find(" "), (Numbers{0, 1, 2, 3}));
}

TEST(Find, ExportsWhatSpreadsheetsReadAsItIs) {
  const std::pair<const char*, const char*> cells[] = {
      {"-3", "-3"},    {"0.5", "0.5"},    {"+4", "+4"},  {"-09:00", "'-09:00"},
      {"=A1", "'=A1"}, {" =A1", "' =A1"}, {"@x", "'@x"}, {"\t=1", "'\t=1"},
      {"-.5", "'-.5"}, {"1=1", "1=1"},    {"+", "'+"},   {"", ""},
  };
  for (const auto& [text, cell] : cells) EXPECT_EQ(HarmlessCell(text), cell);

  HeadlessPlatform platform;
  HostSession session(
      platform, [](int, const std::function<void()>& task) { task(); },
      SimulatedDevice(DeviceSetup{.model = 7, .cameras = 4}));
  session.Configure({.comm_id = 1, .sync = true});
  session.Download();
  MainMenuCtrl& control = session.Control();
  auto before = control.Image();
  control.SetSetting("CamInfo(0).title", "=\"a\",b");
  control.SetSetting("MultiDwell", "12");
  SettingTable table(session);
  EXPECT_TRUE(table.Update());
  EXPECT_FALSE(table.Update());
  const std::string head =
      "\xEF\xBB\xBF"
      "Editor,Page,Label,Line,Value,";
  const std::string tail = "Blocks,Differs from device,Differs from factory,Names\r\n";
  EXPECT_EQ(
      CsvOf(table, table.List(Among::kChanged, "")),
      head + tail +
          "Sequencing,,Multiscreen Dwell,,12 s,59,yes,yes,MultiDwell\r\n"
          "Camera Setup,Camera Setup,Title 1,,\"'=\"\"a\"\",b\",1,yes,yes,CamInfo(0).title\r\n");
  table.CompareWith(std::move(before));
  EXPECT_EQ(CsvOf(table, table.List(Among::kNotFile, "dwell")),
            head + "In the file," + tail +
                "Sequencing,,Multiscreen Dwell,,12 s,5 s,59,yes,yes,MultiDwell\r\n");
  control.Undo();
  EXPECT_TRUE(table.Update());
  EXPECT_TRUE(table.List(Among::kNotFile, "dwell").empty());
}

}  // namespace
}  // namespace quorvel::muxhost
