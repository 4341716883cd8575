#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quorvel::bench {

/// The usual table, and ratios after it. They compare the fastest repetitions: what else the
/// machine does can only slow a repetition down.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  /// Lets a benchmark state its fastest repetition, which is what the ratios are made of.
  static void Keep(benchmark::internal::Benchmark* added);

  RatioReporter() : ConsoleReporter(OO_Tabular) {}
  void ReportRuns(const std::vector<Run>& reports) override;

  /// Prints how `name` compares with "flat_" + `name`, beside what is asked for: the bar that must
  /// hold and the goal. Prints nothing unless both were measured.
  void PrintRatio(const std::string& name, std::optional<double> bar = {},
                  std::optional<double> goal = {}) const;
  /// Prints the time of `name` beside the goal for it. Prints nothing unless it was measured.
  void PrintTime(const std::string& name, double goal_microseconds) const;

 private:
  std::map<std::string, double> nanoseconds_;
};

}  // namespace quorvel::bench
