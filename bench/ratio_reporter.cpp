#include "bench/ratio_reporter.h"

#include <algorithm>
#include <cstdio>

namespace quorvel::bench {

namespace {
constexpr const char* kStatistic = "fastest";
}

void RatioReporter::Keep(benchmark::internal::Benchmark* added) {
  added->ComputeStatistics(kStatistic, [](const std::vector<double>& times) {
    return *std::min_element(times.begin(), times.end());
  });
}

void RatioReporter::ReportRuns(const std::vector<Run>& reports) {
  for (const Run& run : reports) {
    if (run.run_type == Run::RT_Aggregate && run.aggregate_name == kStatistic)
      nanoseconds_[run.run_name.function_name] = run.GetAdjustedCPUTime();
  }
  ConsoleReporter::ReportRuns(reports);
}

void RatioReporter::PrintRatio(const std::string& name, std::optional<double> bar,
                               std::optional<double> goal) const {
  const auto ours = nanoseconds_.find(name);
  const auto flat = nanoseconds_.find("flat_" + name);
  if (ours == nanoseconds_.end() || flat == nanoseconds_.end()) return;
  const double ratio = ours->second / flat->second;
  std::printf("%-14s %6.0f ns, flat %6.0f ns: %.2f times", name.c_str(), ours->second, flat->second,
              ratio);
  if (bar) std::printf(" (%s the bar of %.1f)", ratio <= *bar ? "within" : "OVER", *bar);
  if (goal) std::printf(" (%s the goal of %.1f)", ratio <= *goal ? "within" : "over", *goal);
  std::printf("\n");
}

void RatioReporter::PrintTime(const std::string& name, double goal_microseconds) const {
  constexpr double kNanosecondsInAMicrosecond = 1000;
  const auto measured = nanoseconds_.find(name);
  if (measured == nanoseconds_.end()) return;
  const double microseconds = measured->second / kNanosecondsInAMicrosecond;
  std::printf("%-20s %6.1f us (%s the goal of %.0f us)\n", name.c_str(), microseconds,
              microseconds <= goal_microseconds ? "within" : "over", goal_microseconds);
}

}  // namespace quorvel::bench
