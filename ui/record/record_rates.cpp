#include "ui/record/record_rates.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

#include "ui/editing/number_texts.h"

namespace quorvel {

namespace {

constexpr std::array kRecRateDivisor = {1,  2,  3,  4,  5,  6,  8,  10,  12,  16, 20,
                                        24, 32, 40, 48, 64, 80, 96, 128, 160, 200};
constexpr int kLastExtendedDivisor = 250;
constexpr int kNoDivisor = 0;
constexpr int kFirstTriplex = 6;
constexpr int kFieldsOfAllCameras = 2;  // of PlaybackOld
constexpr const char* kBetween = "  ";  // between the two ways of telling a rate

int PlainDivisor(int rate) {
  return rate >= 0 && rate <= kLastRate ? kRecRateDivisor.at(static_cast<std::size_t>(rate))
                                        : kNoDivisor;
}

int TriplexDivisor(const RateModel& model, int rate) {
  if (rate == kTurboRate) rate = 0;
  if (!model.extended_table) return PlainDivisor(rate);
  return rate == kLastRate ? kLastExtendedDivisor : rate < 0 ? kNoDivisor : PlainDivisor(rate + 1);
}

bool TurboIsOn(const RateModel& model) { return model.Rec120sp == 1; }

int PicturesPerSecond(bool pal) { return pal ? 25 : 30; }

std::string WithUnit(const RateModel& model, std::string number, bool seconds_per_picture) {
  return std::move(number) + (seconds_per_picture ? model.spp : model.pps);
}

/// Halves are rounded away from zero, also those of which a binary fraction falls short.
std::string Rounded(double value, std::size_t places) {
  constexpr double kShortfall = 1e-9;
  const double scale = std::pow(10.0, static_cast<double>(places));
  std::string digits =
      NumberText(static_cast<int>(std::floor(value * scale + 0.5 + kShortfall)), places + 1);
  if (places > 0) digits.insert(digits.size() - places, ".");
  return digits;
}

}  // namespace

std::string FormatRate(const RateModel& model, double value, bool seconds_per_picture) {
  const std::size_t places = value >= 10 ? 0 : value >= 1 ? 1 : value >= 0.1 ? 2 : 3;
  return WithUnit(model, Rounded(value, places), seconds_per_picture);
}

std::string FindRecordRatio(const RateModel& model, int thousandths, bool seconds_per_picture) {
  if (thousandths < 0) return {};
  std::string digits = NumberText(thousandths, 4);
  if (thousandths >= 10000) {
    digits.resize(digits.size() - 3);
  } else {
    digits.insert(1, ".");
    digits.resize(thousandths >= 1000 ? 3 : thousandths >= 100 ? 4 : 5);
  }
  return WithUnit(model, std::move(digits), seconds_per_picture);
}

std::string RecRateText(const RateModel& model, int rate, int cameras, bool pal, bool single_only) {
  if (cameras == 0) return "----";
  if (model.ModelCode >= kFirstTriplex) {
    return Triplex_RecRatio(model, rate, cameras, pal, single_only);
  }
  const int divisor = PlainDivisor(rate);
  if (divisor == kNoDivisor || cameras < 0) return {};
  const double rate_of_all = (cameras > 1 ? 0.8 : 1.0) * PicturesPerSecond(pal);
  if (single_only) return WithUnit(model, Rounded(rate_of_all / divisor, 2), false);
  const double shared_by = divisor * cameras;
  return FormatRate(model, rate_of_all / shared_by, false) + kBetween +
         FormatRate(model, shared_by / rate_of_all, true);
}

std::string Triplex_RecRatio(const RateModel& model, int rate, int cameras, bool pal,
                             bool single_only) {
  const int divisor = TriplexDivisor(model, rate);
  if (divisor == kNoDivisor || cameras <= 0) return {};
  int pictures = PicturesPerSecond(pal);
  const bool fields = (model.PlaybackOld & kFieldsOfAllCameras) != 0;
  if (fields && cameras > 1) pictures *= rate == kTurboRate && TurboIsOn(model) ? 4 : 2;
  const int most_at_full_rate = fields ? 2 : 1;  // cameras; switching among more costs a fifth
  const int rate_of_all = pictures * (cameras > most_at_full_rate ? 8 : 10);
  if (single_only) return FindRecordRatio(model, rate_of_all * 100 / divisor, false);
  const std::int64_t shared_by = std::int64_t{divisor} * cameras;
  const auto ratio = [&](std::int64_t thousandths, bool seconds_per_picture) {
    return FindRecordRatio(model, static_cast<int>(thousandths), seconds_per_picture);
  };
  return ratio(rate_of_all * 100 / shared_by, false) + kBetween +
         ratio(shared_by * 10000 / rate_of_all, true);
}

int RateIndexToList(const RateModel& model, int rate) {
  if (rate == kTurboRate) return 0;
  return TurboIsOn(model) ? rate + 1 : rate;
}

int ListToRateIndex(const RateModel& model, int line) {
  if (!model.turbo_capable || !TurboIsOn(model)) return line;
  return line == 0 ? kTurboRate : line - 1;
}

int BrevmoorAirport_RecRatio(int rate, bool event) {
  constexpr std::array kPicturesPerSecond = {0, 1, 4, 20};
  constexpr int kFirstEventRate = 2;
  const bool known =
      rate >= (event ? kFirstEventRate : 0) && rate < static_cast<int>(kPicturesPerSecond.size());
  if (!known) rate = event ? kFirstEventRate : 1;
  return kPicturesPerSecond.at(static_cast<std::size_t>(rate));
}

}  // namespace quorvel
