// Times the command line on thousands of settings files, beside a program that only reads them, on
// as many threads. Arguments: the command line, that program, how many files (10000).

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/sample_files.h"

extern char** environ;

namespace quorvel::bench {
namespace {

struct Times {
  double wall_ms = 1e9;
  double cpu_ms = 1e9;
};

double Milliseconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) * 1e-3;
}

/// Runs a program whose output nobody reads, and keeps the best of `times`.
void Run(std::vector<std::string> arguments, const std::vector<std::string>& files, Times& times) {
  arguments.insert(arguments.end(), files.begin(), files.end());
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);

  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  const int error = posix_spawn(&child, argv[0], &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) throw std::runtime_error(arguments.front() + ": cannot be run");
  int status = 0;
  rusage usage{};
  ::wait4(child, &status, 0, &usage);
  const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - start;
  if (!WIFEXITED(status) || WEXITSTATUS(status) > 1) {
    throw std::runtime_error(arguments.front() + ": failed");
  }
  times.wall_ms = std::min(times.wall_ms, wall.count());
  times.cpu_ms =
      std::min(times.cpu_ms, Milliseconds(usage.ru_utime) + Milliseconds(usage.ru_stime));
}

void Print(const char* what, std::size_t files, const Times& times) {
  std::printf("%-16s %6zu files %9.1f ms %9.1f ms of processors\n", what, files, times.wall_ms,
              times.cpu_ms);
}

void Measure(const std::string& tool, const std::string& reader, std::size_t count) {
  constexpr int kRounds = 15;
  constexpr double kBar = 0.5;
  const SampleFiles files(count);
  Times read, check, read_alike, diff;
  // Interleaved: what else the machine does falls on all of them.
  for (int round = 0; round < kRounds; ++round) {
    Run({reader}, files.All(), read);
    Run({tool, "check"}, files.All(), check);
    Run({reader}, files.Alike(), read_alike);
    Run({tool, "diff", files.Alike().front()}, files.Alike(), diff);
  }
  Print("read only", files.All().size(), read);
  Print("quorvel check", files.All().size(), check);
  Print("read only", files.Alike().size(), read_alike);
  Print("quorvel diff", files.Alike().size(), diff);
  const double speed = read.wall_ms / check.wall_ms;
  std::printf("quorvel check: %.2f of the speed of reading (%s %.2f); of processors %.2f\n", speed,
              speed >= kBar ? "within the bar of" : "BELOW the bar of", kBar,
              read.cpu_ms / check.cpu_ms);
  std::printf("quorvel diff: %.2f of the speed of reading\n", read_alike.wall_ms / diff.wall_ms);
}

}  // namespace
}  // namespace quorvel::bench

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: quorvel_files_bench TOOL READER [COUNT]\n");
    return 2;
  }
  try {
    quorvel::bench::Measure(argv[1], argv[2], argc > 3 ? std::stoul(argv[3]) : 10000);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "quorvel_files_bench: %s\n", error.what());
    return 1;
  }
}
