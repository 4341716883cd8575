#include "muxhost/report/report.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "muxhost/report/setting_names.h"
#include "muxhost/script/runner.h"

namespace quorvel::muxhost {
namespace {

/// The report that a script writes behind its other lines.
std::string ReportAfter(const std::string& lines) {
  const std::string path = testing::TempDir() + "quorvel_report.html";
  std::istringstream script(lines + "report " + path + "\n");
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(ScriptRunner(script, out, err).Run(), 0) << err.str();
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The first element that is closed and is not the one open, or left open; empty where all agree.
std::string Unbalanced(const std::string& html) {
  std::vector<std::string> open;
  for (auto at = html.find('<'); at != std::string::npos; at = html.find('<', at + 1)) {
    const std::string tag = html.substr(at + 1, html.find_first_of(" >", at) - at - 1);
    if (tag == "!DOCTYPE" || tag == "meta" || tag == "br") continue;
    if (tag.front() != '/') {
      open.push_back(tag);
    } else if (open.empty() || open.back() != tag.substr(1)) {
      return tag;
    } else {
      open.pop_back();
    }
  }
  return open.empty() ? "" : open.back();
}

TEST(Report, TellsSettingsByWindowWithWhatWasChangedAndTheBlocks) {
  const std::string html = ReportAfter(
      "device model=6 cameras=4 name=<TX>\ndownload\nset FullDwell 9\n"
      "set CamInfo(1).title \"A&B\"\nset CamInfo(2).SignalGain 60\n"
      "set CamInfo(0).ActGrid(3) 7\n");
  EXPECT_EQ(Unbalanced(html), "");
  const char* const parts[] = {
      "<title>Settings of &lt;TX&gt;</title>",
      "<tr><th>Model</th>\n<td>6 Triplex NTSC</td>\n</tr>",
      "<tr><th>Changed</th>\n<td>4 settings</td>\n</tr>",
      "<tr><td>Sequencing &gt; Fullscreen Dwell</td>\n<td>5 s</td>\n"
      "<td class=\"changed\">\u25CF 9 s</td>\n<td>block 59</td>\n</tr>",
      "<tr><th>Fullscreen Dwell</th>\n<td class=\"changed\">\u25CF 9 s<br>"
      "<span class=\"was\">was 5 s</span>\n</td>\n</tr>",
      "<th class=\"line\">Camera 2 &quot;A&amp;B&quot;</th>",
      "<td class=\"changed\">\u25CF 110<br><span class=\"was\">was 100</span>\n</td>",
      "<tr><td class=\"changed\">\u25CF 2</td>\n"
      "<td class=\"bytes\">41 26 42 20 20 20 20 20 20 20 20 20 20 00 00 00</td>\n"
      "<td class=\"names\">CamInfo(1).title</td>\n</tr>",
      "CamEvent(0-15).EvAssociated(0)",
      "<tr><th>CamInfo(0).ActGrid(0-2)</th>\n<td>255 255 255</td>\n</tr>\n"
      "<tr><th>CamInfo(0).ActGrid(3)</th>\n<td class=\"changed\">\u25CF 7<br>"
      "<span class=\"was\">was 255</span>\n</td>\n</tr>\n"
      "<tr><th>CamInfo(0).ActGrid(4-31)</th>\n"};
  for (const char* const part : parts) {
    EXPECT_NE(html.find(part), std::string::npos) << part;
  }
  EXPECT_EQ(ReportAfter("device\ndownload\n").find("\u25CF"), std::string::npos);
  // Two cameras that share a control and changed alike are one change, and each is marked.
  const std::string lite = ReportAfter(
      "device model=12 cameras=4\ndownload\nset CamEvent(0).PostEvDuration 7\n"
      "set CamEvent(1).PostEvDuration 7\nset CamEvent(2).PostEvDuration 9\n");
  for (const char* const camera : {"Camera 1", "Camera 2", "Camera 3"}) {
    const std::string marked = std::string(camera) + "</th>\n<td class=\"changed\">";
    EXPECT_NE(lite.find(marked), std::string::npos) << camera;
  }
  const std::string german = ReportAfter("language de\ndevice name=TX\ndownload\n");
  EXPECT_NE(german.find("<h1>Einstellungen von TX</h1>"), std::string::npos);
}

TEST(Report, TellsWhereTheSettingsAreFrom) {
  const std::string file = testing::TempDir() + "quorvel_report.bin";
  const std::string lines[][2] = {
      {"new model=7 cameras=16\n", "the factory defaults"},
      {"device\ndownload\n", "the device"},
      {"device\ndownload\ndefaults\n", "the factory defaults"},
      {"device\ndownload\nsave \"" + file + "\"\nrestore \"" + file + "\"\n", "a settings file"},
      {"device\ndownload\ndefaults\nundo control\n", "the device"},
      {"device\ndownload\ndefaults\nundo control\nredo control\n", "the factory defaults"},
  };
  for (const auto& [script, from] : lines) {
    const std::string fact = "<tr><th>From</th>\n<td>" + from + "</td>\n</tr>";
    EXPECT_NE(ReportAfter(script).find(fact), std::string::npos) << script;
  }
}

TEST(Report, GathersNamesThatDifferInTheirNumbers) {
  const std::vector<std::string> names{"A(0)",      "A(1)",      "B",         "A(3)",
                                       "C(0).D(1)", "C(0).D(2)", "C(1).D(1)", "C(1).D(2)"};
  const std::vector<std::string> gathered{"A(0-1, 3)", "B", "C(0-1).D(1-2)"};
  EXPECT_EQ(Gathered(names), gathered);
}

}  // namespace
}  // namespace quorvel::muxhost
