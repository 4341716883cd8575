#pragma once

#include <string>

namespace quorvel {

/// What the text of a record rate depends on besides the rate and the cameras that record.
struct RateModel {
  int ModelCode = 0;
  bool extended_table = false;  ///< divisors from 2 to 250, not from 1 to 200
  bool turbo_capable = false;
  int PlaybackOld = 0;  ///< bit 1: a triplex records fields of all cameras
  int Rec120sp = 0;     ///< 1 while turbo is on
  std::string pps;      ///< unit of pictures per second, with the blank before it
  std::string spp;      ///< unit of seconds per picture
};

/// A stored rate is 0 to kLastRate, or that of turbo.
inline constexpr int kLastRate = 20;
inline constexpr int kTurboRate = 99;

/// How a rate reads when so many cameras record: pictures per second and seconds per picture, or
/// with `single_only` the pictures per second of one camera alone. Dashes without cameras, nothing
/// for a rate that the model does not have.
[[nodiscard]] std::string RecRateText(const RateModel& model, int rate, int cameras, bool pal,
                                      bool single_only);
/// The same on triplex models, which reckon in whole thousandths.
[[nodiscard]] std::string Triplex_RecRatio(const RateModel& model, int rate, int cameras, bool pal,
                                           bool single_only);
/// A number of thousandths with its unit, cut after two digits, below a tenth after three places.
[[nodiscard]] std::string FindRecordRatio(const RateModel& model, int thousandths,
                                          bool seconds_per_picture);
/// A number with its unit, rounded to as many places as its size leaves worth telling.
[[nodiscard]] std::string FormatRate(const RateModel& model, double value,
                                     bool seconds_per_picture);

/// The line of a rate in a list of rates, and back. While turbo is on its rate comes first.
[[nodiscard]] int RateIndexToList(const RateModel& model, int rate);
[[nodiscard]] int ListToRateIndex(const RateModel& model, int line);

/// Pictures per second behind a stored rate of a lite model.
[[nodiscard]] int BrevmoorAirport_RecRatio(int rate, bool event);

}  // namespace quorvel
