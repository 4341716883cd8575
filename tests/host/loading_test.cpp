#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

class Loading : public ::testing::Test {
 protected:
  void SetUp() override {
    host_.Identify(16, 6);
    host_.control->SaveConnectedInfo(std::vector<Byte>{0, 16, 6, 'U', 'N', 'I', 'T', ' ', '1'});
  }

  TestHost host_;
};

TEST_F(Loading, AFileIsLoadedAndSavedAsBytesWithoutAQuestionOrAnEvent) {
  EXPECT_TRUE(host_.control->SaveSettings().empty());
  auto answer = host_.control->LoadSettings(BytesOf(host_.device));
  EXPECT_TRUE(answer && answer.cause.empty());
  EXPECT_EQ(host_.control->SaveSettings(), BytesOf(host_.device));
  host_.EditTitle(0, "Typed");
  const auto saved = host_.control->SaveSettings();
  EXPECT_EQ(std::string(saved.begin(), saved.begin() + 5), "Typed");
  EXPECT_EQ(host_.Modified(), std::vector<int>{1});

  host_.StateSizes();
  answer = host_.control->LoadSettings(ArrayOf(host_.device, 5));
  EXPECT_TRUE(answer);
  EXPECT_EQ(answer.cause,
            "What has arrived lacks macro data: the settings are used, the macros cannot be sent.");
  EXPECT_TRUE(host_.Modified().empty());
  EXPECT_TRUE(host_.control->LoadSettings(ArrayOf(host_.device)));
  host_.EditTitle(1, "Second");
  const auto array = host_.control->SaveSettings();
  EXPECT_EQ(array.size(), 3221U);
  EXPECT_TRUE(std::equal(array.begin(), array.begin() + 13, ArrayOf(host_.device).begin()));
  EXPECT_EQ(std::string(array.begin() + 13 + 16, array.begin() + 13 + 22), "Second");
  EXPECT_EQ(std::string(array.end() - 8, array.end()), "MMMMMMMM");
  EXPECT_TRUE(host_.log.empty());
  EXPECT_TRUE(host_.platform.TakeMessages().empty());
  EXPECT_TRUE(host_.platform.TakeFileRequests().empty());
}

TEST_F(Loading, FactoryDefaultsNeedNoDevice) {
  EXPECT_TRUE(host_.control->LoadDefaults(4, 0x80 | 7, "TX4", '2'));
  const auto image = host_.control->SaveSettings();
  EXPECT_EQ(image.size(), 3200U);
  EXPECT_EQ(std::string(image.begin() + 2944, image.begin() + 2952),
            std::string("\x04\x07TX4\0\0\0", 8));
  EXPECT_EQ(image.at(2919), '2');
  host_.control->Custom(11, 0, 0);  // a host may name any device: it is compared first
  EXPECT_EQ(host_.OnlyMessage(),
            "The current data does not match the data of the remote device\rYou are connected to "
            "model:  UNIT 1 (16 ch, Triplex NTSC)\rYou are loading data from model:  TX4 (4 ch, "
            "Triplex PAL)");
  EXPECT_TRUE(host_.log.empty());
}

TEST_F(Loading, WhatIsRefusedChangesNothing) {
  BlockImage seventeen = host_.device;
  seventeen.Block(185)[0] = 17;
  const struct {
    std::function<LoadAnswer(MainMenuCtrl&)> load;
    const char* cause;
  } cases[] = {
      {[](auto& it) { return it.LoadSettings({}); },
       "This is no configuration: it counts no blocks."},
      {[](auto& it) { return it.LoadSettings(std::vector<Byte>(40000)); },
       "The file has 40000 bytes; files of 32768 bytes or more cannot be restored."},
      {[&](auto& it) { return it.LoadSettings(BytesOf(seventeen)); },
       "The configuration names 17 cameras; 16 are the most."},
      {[](auto& it) { return it.LoadDefaults(17, 6, "TX17", '4'); },
       "The device names 17 cameras; 16 are the most."},
      {[](auto& it) { return it.LoadDefaults(16, 6, "Fifteen letters", '4'); },
       "The model name has 15 characters; 14 are the most."},
  };
  host_.Download();
  host_.EditTitle(0, "Typed");
  host_.control->UsePcTime(true);
  const auto image = host_.control->Image();
  host_.silent_from = 5;
  for (const auto& it : cases) {
    SCOPED_TRACE(it.cause);
    host_.act_in = "RequestBlk 5";
    host_.act = [&] {
      const LoadAnswer answer = it.load(*host_.control);
      EXPECT_FALSE(answer);
      EXPECT_EQ(answer.cause, it.cause);
      host_.Give(5);
    };
    host_.log.clear();
    host_.control->Custom(10, 0, 0);  // closed when no more happens
    EXPECT_EQ(host_.log.back(), "UploadSucceeded") << "the download goes on";
    host_.EditTitle(0, "Typed");
    host_.control->UsePcTime(true);
    EXPECT_FALSE(it.load(*host_.control));
    EXPECT_EQ(host_.control->Image(), image);
    EXPECT_EQ(host_.Modified(), (std::vector<int>{1, 61}));
    EXPECT_EQ(host_.control->Settings("CamInfo(0).title").at(0).value, "\"Typed\"");
    EXPECT_TRUE(host_.control->UsePcTime());
  }
  EXPECT_TRUE(host_.platform.TakeMessages().empty());
}

TEST_F(Loading, LoadingEndsADownloadAndIsComparedBeforeASend) {
  host_.sync = true;
  host_.act_in = "RequestBlk 50";
  BlockImage other = host_.device;
  other.Block(185)[0] = 4;
  host_.act = [&] { EXPECT_TRUE(host_.control->LoadSettings(BytesOf(other))); };
  host_.control->Custom(10, 0, 0);
  EXPECT_TRUE(host_.platform.Windows().empty());
  EXPECT_EQ(host_.Count("RequestBlk 51") + host_.Count("UploadSucceeded"), 0);
  EXPECT_EQ(host_.control->Image(), BytesOf(other));
  host_.control->Custom(11, 0, 0);
  EXPECT_TRUE(host_.OnlyMessage().starts_with("The current data does not match"));
}

}  // namespace
}  // namespace quorvel
