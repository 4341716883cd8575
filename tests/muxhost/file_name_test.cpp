#include "muxhost/file_name.h"

#include <gtest/gtest.h>

#include "muxhost/device/device_setup.h"

namespace quorvel::muxhost {
namespace {

TEST(ProposedFileName, HoldsModelNameAndDateWithoutWhatFilesCannotHold) {
  const struct {
    const char* name;
    const char* file;
  } cases[] = {
      {"TX16", "TX16 2026-11-03.bin"},
      {"Front gate", "TX16 Front gate 2026-11-03.bin"},
      {"..\\a/b:c*d?<|>", "TX16 .._a_b_c_d____ 2026-11-03.bin"},
      {"\xDC"
       "ber\x01\"",
       "TX16 Über__ 2026-11-03.bin"},
      {"", "TX16 2026-11-03.bin"},
  };
  for (const auto& it : cases) {
    const BlockImage image = FactoryImage({.name = it.name});
    EXPECT_EQ(ProposedFileName(image.Bytes(), {2026, 11, 3}), it.file);
  }
  EXPECT_EQ(ProposedFileName({}, {2026, 11, 3}), "2026-11-03.bin");
}

}  // namespace
}  // namespace quorvel::muxhost
