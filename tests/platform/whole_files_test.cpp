#include "platform/common/whole_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "quorvel/platform.h"

namespace quorvel {
namespace {

namespace fs = std::filesystem;

class WholeFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }
  [[nodiscard]] std::string In(const char* name) const { return (folder_ / name).string(); }
  [[nodiscard]] std::size_t FilesInFolder() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), {}));
  }

  const std::vector<std::uint8_t> bytes_{0, 13, 10, 255};
  fs::path folder_ =
      fs::path(::testing::TempDir()) /
      ("quorvel_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
};

TEST_F(WholeFiles, ReplaceWholeAndLeaveNothingElse) {
  std::ofstream(In("a.bin")) << "a longer file that was here before";
  std::ofstream(In("a.bin.new")) << "somebody's";
  fs::permissions(In("a.bin"), fs::perms::owner_read | fs::perms::owner_write);
  ReplaceWholeFile(In("a.bin"), bytes_);
  EXPECT_EQ(ReadWholeFile(In("a.bin")), bytes_);
  EXPECT_EQ(ReadWholeFile(In("a.bin.new")).size(), 10U);
  EXPECT_EQ(FilesInFolder(), 2U);
  EXPECT_EQ(fs::status(In("a.bin")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(WholeFiles, LinksStayLinks) {
  fs::create_symlink("target.bin", In("link.bin"));
  for (int time = 0; time < 2; ++time) {
    ReplaceWholeFile(In("link.bin"), bytes_);
    EXPECT_TRUE(fs::is_symlink(In("link.bin")));
    EXPECT_EQ(ReadWholeFile(In("target.bin")), bytes_);
  }
}

TEST_F(WholeFiles, WhatIsNoFileIsRefused) {
  fs::create_directory(In("folder"));
  for (const std::string& path : {In("folder"), In("missing/a.bin")}) {
    EXPECT_THROW(ReplaceWholeFile(path, bytes_), PlatformError) << path;
    EXPECT_THROW(static_cast<void>(ReadWholeFile(path)), PlatformError) << path;
  }
  EXPECT_EQ(FilesInFolder(), 1U);
}

}  // namespace
}  // namespace quorvel
