#include "muxhost/device/link_fault.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sstream>

#include "muxhost/script/runner.h"

namespace quorvel::muxhost {
namespace {

constexpr const char* kKinds[] = {"silent",    "short", "long", "garbage", "wrong",
                                  "duplicate", "late",  "drop", "stop",    "close"};

/// What a script prints. FAULT in it is the fault's kind and place.
std::vector<std::string> Printed(std::string script, const std::string& fault) {
  script.replace(script.find("FAULT"), 5, fault);
  std::istringstream in(script);
  std::stringstream out;
  std::ostringstream err;
  EXPECT_EQ(ScriptRunner(in, out, err).Run(), 0) << err.str();
  std::vector<std::string> lines;
  for (std::string line; std::getline(out, line);) lines.push_back(line);
  return lines;
}

/// Calls `check` with every kind of fault at every reply or packet up to `places`.
void ForEveryFault(int places, const std::function<void(const std::string&)>& check) {
  for (const char* kind : kKinds) {
    for (int at = 1; at <= places; ++at) {
      const std::string fault = std::string(kind) + " at=" + std::to_string(at);
      SCOPED_TRACE(fault);
      check(fault);
    }
  }
}

/// Titles of blocks 1 to 3: four packets. What an upload left undone, the next one does; the list
/// stays until then.
TEST(LinkFault, EveryUploadCanBeRepeated) {
  for (const std::string device : {"device blocks=190", "device blocks=190 combined macros=2x8"}) {
    ForEveryFault(4, [&device](const std::string& fault) {
      const auto lines = Printed(
          device +
              "\ndownload\nmenu\nchoose mnu_CSetup\ntype m_CameraTitle(0) Lobby\n"
              "type m_CameraTitle(1) Yard\ntype m_CameraTitle(2) Gate\nclick cmd_OK\ndismiss\n"
              "fault FAULT\nupload modified\nfault none\nmodified\nupload modified\n"
              "upload all macros\ndiff\n",
          fault);
      ASSERT_GE(lines.size(), 6U);
      const auto* const end = lines.data() + lines.size();
      EXPECT_EQ(end[-6], "modified: 1 2 3");
      EXPECT_EQ(end[-5], "uploaded blocks 1-3: Finished");
      EXPECT_EQ(end[-4], "read back: 3 blocks as sent");
      EXPECT_EQ(end[-1], "diff: none");
    });
  }
}

/// The record is the old one or the new one as a whole, and the list of changes goes with it.
TEST(LinkFault, DownloadsKeepTheOldRecordOrBringTheNewOne) {
  for (const std::string device : {"device blocks=6", "device blocks=190 combined macros=2x8"}) {
    ForEveryFault(6, [&device](const std::string& fault) {
      const auto lines = Printed(device +
                                     "\ndownload\nmenu\nchoose mnu_CSetup\n"
                                     "type m_CameraTitle(0) Lobby\ntype m_CameraTitle(5) Gate\n"
                                     "click cmd_OK\ndismiss\nfault FAULT\ndownload\nfault none\n"
                                     "settings .title\nmodified\ndownload\ndiff\n",
                                 fault);
      ASSERT_GE(lines.size(), 10U);
      const auto* const end = lines.data() + lines.size();
      const auto title = [&lines](std::string camera) {
        const auto starts = [&](const std::string& line) { return line.starts_with(camera); };
        const auto found = std::find_if(lines.rbegin(), lines.rend(), starts);
        return found == lines.rend() ? "" : found->substr(camera.size());
      };
      const std::string first = title("CamInfo(0).title = ");
      const bool kept = first == "\"Lobby\"";
      if (!fault.starts_with("garbage")) {  // which may be what a title is
        EXPECT_EQ(first, kept ? first : R"("Camera 01   \x00")");
        EXPECT_EQ(title("CamInfo(5).title = "), kept ? "\"Gate\"" : R"("Camera 06   \x00")");
      }
      EXPECT_EQ(end[-3], kept ? "modified: 1 6" : "modified: none");
      EXPECT_EQ(end[-2].substr(0, 11), "downloaded ");
      EXPECT_EQ(end[-1], "diff: none");
    });
  }
}

}  // namespace
}  // namespace quorvel::muxhost
