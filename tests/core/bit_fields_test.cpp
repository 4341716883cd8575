#include "core/bit_fields.h"

#include <gtest/gtest.h>

#include "core/byte_order.h"

namespace quorvel {
namespace {

TEST(BitFields, Getters) {
  EXPECT_EQ(GetBit(0xB9, 0), 1);
  EXPECT_EQ(GetBit(0xB9, 1), 0);
  EXPECT_EQ(GetBit(0xB9, 7), 1);
  const int pairs[] = {0, 1, 2, 3, 3, 3};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(Get2Bits(0xE4, i), pairs[i]) << i;
  EXPECT_EQ(GetNibble(0x5A, 0), 10);
  EXPECT_EQ(GetNibble(0x5A, 1), 5);
  EXPECT_EQ(GetNibble(0x5A, 7), 5);
}

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
  EXPECT_THROW(Set2Bits(value, 4, 1), std::out_of_range);
  EXPECT_THROW(SetNibble(value, 2, 1), std::out_of_range);
}

TEST(ByteOrder, MostSignificantFirst) {
  Byte bytes[] = {0, 0};
  ToDeviceOrder(bytes, 2960);
  EXPECT_EQ(bytes[0], 0x0B);
  EXPECT_EQ(bytes[1], 0x90);
  EXPECT_EQ(FromDeviceOrder(bytes), 2960);
}

}  // namespace
}  // namespace quorvel
