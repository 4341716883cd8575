#include <gtest/gtest.h>

#include "core/codec.h"
#include "core/factory_defaults.h"
#include "core/settings_by_name.h"
#include "quorvel/default_images.h"

namespace quorvel {
namespace {

void ExpectNothingFound(BlockImage image) {
  RecordEnvironment env;
  const auto rec = std::make_unique<MuxData>(env);
  DecodeImage(image, env, *rec);
  const Configuration decoded{*rec, env.identity, image.BlkCount()};
  for (const SettingFinding& it : FindUnallowed(decoded)) {
    ADD_FAILURE() << it.name << " is " << it.value << ", " << it.reason;
  }
  for (const char* const name : {"*.covert", "*.disable", "*.VidLoss"}) {
    for (const SettingLine& it : ListSettings(*rec, env.identity, 255, name)) {
      EXPECT_EQ(it.value, "no") << it.name;
    }
  }
  EXPECT_EQ(GetSetting(decoded, "TDInfo.CurrentYear"), "2000");
  EXPECT_EQ(GetSetting(decoded, "TDInfo.TimeZoneIdx").value_or("13"), "13");
  EXPECT_EQ(GetSetting(decoded, "CamInfo(3).color"), "yes");
}

/// Of every model, and as the loader gives them to devices of other model codes as well.
TEST(FactorySettings, AreSuchAsSettingsCanHave) {
  constexpr std::array<Byte, 14> kName = {'U', 'N', 'I', 'T'};
  for (Byte code = 0; code <= 20; ++code) {
    for (const Byte cameras : {4, 9, 10, 16}) {
      for (const Byte variant : {'4', '2', 'A'}) {
        SCOPED_TRACE(testing::Message() << "code " << int{code} << ", cameras " << int{cameras}
                                        << ", variant " << variant);
        BlockImage image = LoadDefaultImage(FactoryImageOf(code));
        AdaptToDevice(image, DefaultsDevice{variant, cameras, code, kName}, 225);
        ExpectNothingFound(std::move(image));
      }
    }
  }
  for (const Byte code : {0, 1}) {
    BlockImage image = LoadDefaultImage(104);
    image.Block(kIdentityBlock)[1] = code;
    ExpectNothingFound(std::move(image));
  }
  EXPECT_THROW(static_cast<void>(LoadDefaultImage(0)), std::invalid_argument);
}

}  // namespace
}  // namespace quorvel
