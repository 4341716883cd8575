#include "core/bit_fields.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(BitFields, SettersTouchOnlyTheirField) {
  Byte value = 0xFF;
  Set2Bits(value, 1, 0);
  EXPECT_EQ(value, 0xF3);
  Set2Bits(value, 1, 6);  // above 3 is taken as 3
  EXPECT_EQ(value, 0xFF);
  value = 0xA5;
  SetNibble(value, 0, 20);  // above 15 is taken as 15
  EXPECT_EQ(value, 0xAF);
  SetNibble(value, 1, 3);
  EXPECT_EQ(value, 0x3F);
  SetBit(value, 8, true);
  SetBit(value, 0, true);
  EXPECT_EQ(value, 0x3F);
  SetBit(value, 7, true);
  ClearBit(value, 0);
  EXPECT_EQ(value, 0xBE);
  EXPECT_EQ(Get2Bits(0xE4, 5), 3);  // beyond the byte: its last field
  EXPECT_EQ(GetNibble(0x5A, 7), 5);
  EXPECT_THROW(Set2Bits(value, 4, 1), std::out_of_range);
  EXPECT_THROW(SetNibble(value, 2, 1), std::out_of_range);
}

}  // namespace
}  // namespace quorvel
