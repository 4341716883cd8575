#include "quorvel/whole_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/common/sole_file.h"
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
  std::ofstream(In("a.bin.new")) << "what a killed write has left";
  fs::permissions(In("a.bin"), fs::perms::owner_read | fs::perms::owner_write);
  ReplaceWholeFile(In("a.bin"), bytes_);
  EXPECT_EQ(ReadWholeFile(In("a.bin")), bytes_);
  EXPECT_EQ(FilesInFolder(), 1U);
  EXPECT_EQ(fs::status(In("a.bin")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

/// Neither what another writer is at nor what is no file is taken for a left one.
TEST_F(WholeFiles, NamesThatAreInUseAreLeft) {
  std::ofstream(In("other")) << "linked";
  fs::create_symlink("other", In("link.bin.new"));
  fs::create_directory(In("folder.bin.new"));
  std::error_code error;
  const auto busy = SoleFile::Create(In("busy.bin.new"), error);
  ASSERT_TRUE(busy);
  const auto files = FilesInFolder();
  for (const char* const name : {"link.bin", "folder.bin", "busy.bin"}) {
    ReplaceWholeFile(In(name), bytes_);
    EXPECT_EQ(ReadWholeFile(In(name)), bytes_);
  }
  EXPECT_EQ(FilesInFolder(), files + 3);
  EXPECT_EQ(ReadWholeFile(In("other")).size(), 6U);
}

TEST_F(WholeFiles, LinksStayLinks) {
  fs::create_symlink("target.bin", In("link.bin"));
  for (int time = 0; time < 2; ++time) {
    ReplaceWholeFile(In("link.bin"), bytes_);
    EXPECT_TRUE(fs::is_symlink(In("link.bin")));
    EXPECT_EQ(ReadWholeFile(In("target.bin")), bytes_);
  }
}

TEST_F(WholeFiles, WhatIsRefusedTellsWhy) {
  fs::create_directory(In("folder"));
  const auto told = [](const auto& act) -> std::string {
    try {
      act();
    } catch (const PlatformError& error) {
      return error.what();
    }
    return {};
  };
  struct {
    std::string path;
    const char* why;
  } const cases[] = {{In("folder"), ": it is not a file"},
                     {In("missing/a.bin"), ": No such file or directory"}};
  for (const auto& it : cases) {
    EXPECT_EQ(told([&] { static_cast<void>(ReadWholeFile(it.path)); }),
              "cannot read " + it.path + it.why);
    EXPECT_EQ(told([&] { ReplaceWholeFile(it.path, bytes_); }), "cannot write " + it.path + it.why);
  }
  EXPECT_EQ(FilesInFolder(), 1U);
}

}  // namespace
}  // namespace quorvel
