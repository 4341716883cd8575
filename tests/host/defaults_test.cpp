#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

constexpr const char* kLoaded = "The default setting has been loaded for model UNIT 1";

TEST(Defaults, OtherRepliesAreNotTaken) {
  TestHost host;
  host.Download();
  const auto before = host.control->Image();
  host.silent_from = 183;
  host.control->Custom(16, 0, 0);
  host.platform.RunUntilIdle();
  for (const int stray : {1, 185}) host.Give(stray);
  host.Give(183, 8);  // too short for the variant
  EXPECT_EQ(host.OnlyMessage(),
            "Error found in FillDataBlk\rBlock 183 has come without the variant.");
  EXPECT_EQ(host.control->Image(), before);
  host.silent_from = 185;
  host.Give(183);  // it is still expected
  EXPECT_EQ(host.log.back(), "RequestBlk 185");
  host.Give(185, 16);
  EXPECT_EQ(host.OnlyMessage(),
            "Error found in FillDataBlk\rBlock 185 has come without the identity.");
  host.Give(185);  // the sequence is over
  EXPECT_EQ(host.control->Image(), before);
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
}

TEST(Defaults, ReplaceADownloadAndAreReplacedByOne) {
  TestHost host;
  host.Identify(16, 6);
  host.act_in = "RequestBlk 50";
  host.act = [&host] { host.control->Custom(16, 0, 0); };
  host.control->Custom(10, 0, 0);
  host.platform.RunUntilIdle();
  EXPECT_EQ(host.OnlyMessage(), kLoaded);
  EXPECT_EQ(host.Count("RequestBlk 51"), 0);
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
  EXPECT_TRUE(host.platform.Windows().empty());

  host.log.clear();
  host.act_in = "RequestBlk 185";
  host.act = [&host] { host.Download(); };
  host.control->Custom(16, 0, 0);
  host.platform.RunUntilIdle();
  EXPECT_EQ(host.OnlyMessage(), "");
  EXPECT_EQ(host.Count("RequestBlk 200"), 1);
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
}

}  // namespace
}  // namespace quorvel
