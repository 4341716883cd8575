#include "ui/record/record_rates.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace quorvel {
namespace {

RateModel Model(int code) {
  RateModel model;
  model.ModelCode = code;
  model.turbo_capable = code >= 18;
  model.pps = " pps";
  model.spp = " spp";
  return model;
}

TEST(RecordRates, ReadAsTheTableSays) {
  std::ifstream file(QUORVEL_SOURCE_DIR "/tests/ui/record_rates.txt");
  int rows = 0;
  for (std::string row; std::getline(file, row);) {
    if (row.starts_with('#')) continue;
    SCOPED_TRACE(row);
    std::istringstream words(row);
    int code = 0, cameras = 0;
    std::string standard, word;
    words >> code >> standard >> cameras;
    RateModel model = Model(code);
    bool single = false;
    while (words >> word && word != ":") {
      single = single || word == "single";
      if (word == "fields") model.PlaybackOld = 0xFE;
      if (word == "turbo") model.Rec120sp = 1;
      if (word == "extended") model.extended_table = true;
    }
    if (model.PlaybackOld == 0) model.PlaybackOld = 0xFD;  // of its bits, only bit 1 counts
    for (int rate = 0; words >> word; ++rate) {
      if (const auto slash = word.find('/'); slash != std::string::npos) {
        word = word.replace(slash, 1, " pps  ") + " spp";
      } else if (word == "-") {
        word.clear();
      } else if (word != "----") {
        word += " pps";
      }
      const int index = rate <= 21 ? rate : rate == 22 ? 99 : 255;
      EXPECT_EQ(RecRateText(model, index, cameras, standard == "PAL", single), word) << index;
    }
    ++rows;
  }
  EXPECT_EQ(rows, 56);
}

TEST(RecordRates, NumbersHaveThePlacesThatTheirSizeLeaves) {
  const RateModel model = Model(6);
  const std::pair<int, const char*> cut[] = {
      {12000, "12 pps"}, {10000, "10 pps"}, {9999, "9.9 pps"}, {5700, "5.7 pps"}, {570, "0.57 pps"},
      {100, "0.10 pps"}, {57, "0.057 pps"}, {7, "0.007 pps"},  {0, "0.000 pps"},  {-1, ""}};
  for (const auto& [value, text] : cut) EXPECT_EQ(FindRecordRatio(model, value, false), text);
  EXPECT_EQ(FindRecordRatio(model, 40, true), "0.040 spp");
  const std::pair<double, const char*> rounded[] = {
      {12.5, "13 spp"},  {10, "10 spp"},        {9.96, "10.0 spp"},
      {1.25, "1.3 spp"}, {0.145, "0.15 spp"},   {0.125, "0.13 spp"},
      {0.1, "0.10 spp"}, {0.0125, "0.013 spp"}, {0.04, "0.040 spp"}};
  for (const auto& [value, text] : rounded) EXPECT_EQ(FormatRate(model, value, true), text);
}

TEST(RecordRates, TurboComesFirstWhileItIsOn) {
  RateModel model = Model(18);
  for (const int turbo : {0, 1, 2}) {
    model.Rec120sp = turbo;
    const int first = turbo == 1 ? 1 : 0;
    EXPECT_EQ(RateIndexToList(model, 99), 0);
    EXPECT_EQ(RateIndexToList(model, 20), 20 + first);
    EXPECT_EQ(ListToRateIndex(model, 20 + first), 20);
    EXPECT_EQ(ListToRateIndex(model, 0), turbo == 1 ? 99 : 0);
    EXPECT_EQ(ListToRateIndex(Model(6), 1), 1);
  }
}

TEST(RecordRates, LiteModelsHaveALineForEach) {
  constexpr int kTimeLapse[] = {0, 1, 4, 20, 1, 1};
  constexpr int kEvent[] = {4, 4, 4, 20, 4, 4};
  for (int rate = 0; rate < 6; ++rate) {
    EXPECT_EQ(BrevmoorAirport_RecRatio(rate, false), kTimeLapse[rate]);
    EXPECT_EQ(BrevmoorAirport_RecRatio(rate, true), kEvent[rate]);
  }
  EXPECT_EQ(BrevmoorAirport_RecRatio(-1, true), 4);
}

}  // namespace
}  // namespace quorvel
