#include "host/model_catalogue.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

TEST(ModelCatalogue, TwinsAreTheNtscAndThePalModelOfAKind) {
  std::set<std::pair<int, int>> twins;
  for (Byte connected = 0; connected < 22; ++connected) {
    for (Byte code = 0; code < 22; ++code) {
      if (IsVideoTwin({16, connected, ""}, code)) twins.insert({connected, code});
    }
  }
  const std::set<std::pair<int, int>> expected = {
      {2, 3},   {3, 2},   {4, 5},   {5, 4},   {6, 7},   {7, 6},   {8, 9},   {9, 8},   {10, 11},
      {11, 10}, {12, 13}, {13, 12}, {14, 15}, {15, 14}, {16, 17}, {17, 16}, {18, 19}, {19, 18}};
  EXPECT_EQ(twins, expected);
}

TEST(ModelCatalogue, NamesModels) {
  EXPECT_EQ(ModelText(-1), "");
  EXPECT_EQ(ModelText(0), "Mux model");
  EXPECT_EQ(ModelText(20), "Triplex PAL, Brevmoor Airport");
  EXPECT_EQ(ModelText(21), "");
}

}  // namespace
}  // namespace quorvel
