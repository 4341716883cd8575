#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "muxhost/script/runner.h"

namespace quorvel::muxhost {
namespace {

namespace fs = std::filesystem;

const fs::path kFolder = QUORVEL_SOURCE_DIR "/tests/muxhost/transcripts";

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const auto& file : fs::directory_iterator(kFolder)) names.push_back(file.path().stem());
  std::ranges::sort(names);
  return names;
}

std::string Printed(const std::string& script) {
  std::istringstream in(script);
  std::ostringstream out;
  std::ostringstream err;
  const int status = ScriptRunner(in, out, err, true).Run();
  EXPECT_EQ(status, err.str().empty() ? 0 : 1);
  return out.str() + err.str();
}

/// Scripts as they run: below a line "=== WHAT", each command behind "> " and what it prints. Each
/// part runs in a host of its own; {dir} is a folder of the test's own, shared by the parts, in
/// which "! NAME LENGTH AT=VALUE ..." first makes a file of zeros, and "! NAME SOURCE AT=VALUE ..."
/// one like another. AT is a byte of the file, or BLOCK.BYTE; VALUE is bytes from there on, as
/// 1,2,255, or a text that starts with no digit.
class Transcript : public ::testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }

  [[nodiscard]] std::string WithDir(std::string line) const {
    for (auto at = line.find("{dir}"); at != std::string::npos; at = line.find("{dir}")) {
      line.replace(at, 5, dir_);
    }
    return line;
  }
  void MakeFile(const std::string& line) const {
    std::istringstream words(line);
    std::string sign, name, source;
    words >> sign >> name >> source;
    const fs::path like = fs::path(dir_) / source;
    std::string bytes;
    if (fs::exists(like)) {
      std::ifstream file(like, std::ios::binary);
      bytes.assign(std::istreambuf_iterator<char>(file), {});
    } else {
      bytes.resize(std::stoul(source));
    }
    for (std::string change; words >> change;) {
      const auto equals = change.find('=');
      ASSERT_NE(equals, std::string::npos) << line;
      unsigned block = 1, at = 0;
      if (std::sscanf(change.c_str(), "%u.%u=", &block, &at) != 2) {
        block = 1;
        ASSERT_EQ(std::sscanf(change.c_str(), "%u=", &at), 1) << line;
      }
      at += (block - 1) * kBlockSize;
      std::istringstream values(change.substr(equals + 1));
      if (std::isdigit(values.peek()) == 0) {
        for (const char letter : values.str()) bytes.at(at++) = letter;
        continue;
      }
      for (std::string value; std::getline(values, value, ',');) {
        bytes.at(at++) = static_cast<char>(std::stoul(value));
      }
    }
    std::ofstream(fs::path(dir_) / name, std::ios::binary) << bytes;
  }
  static void Check(const std::string& part, const std::string& script,
                    const std::string& expected) {
    SCOPED_TRACE(part);
    // Nothing may run after a line that fails.
    const bool fails = expected.find("\nline ") != std::string::npos;
    EXPECT_EQ(Printed(fails ? script + "modified\n" : script), expected);
  }

  const std::string dir_ = ::testing::TempDir() + "quorvel_transcript_" + GetParam();
};

TEST_P(Transcript, RunsAsWritten) {
  std::ifstream file(kFolder / (GetParam() + ".transcript"));
  std::string part, script, expected;
  for (std::string line; std::getline(file, line);) {
    line = WithDir(line);
    if (line.starts_with("=== ")) {
      if (!script.empty()) Check(part, script, expected);
      part = line;
      script.clear();
      expected.clear();
    } else if (line.starts_with("! ")) {
      MakeFile(line);
    } else if (!line.empty() && !line.starts_with('#')) {
      if (line.starts_with("> ")) script += line.substr(2) + '\n';
      expected += line + '\n';
    }
  }
  ASSERT_FALSE(script.empty());
  Check(part, script, expected);
}

TEST(ScriptRunner, PassesOverAByteOrderMark) {
  EXPECT_EQ(Printed("\xEF\xBB\xBFmodified"), "> modified\nmodified: none\n");
}

INSTANTIATE_TEST_SUITE_P(Files, Transcript, ::testing::ValuesIn(Names()),
                         [](const auto& name) { return name.param; });

}  // namespace
}  // namespace quorvel::muxhost
