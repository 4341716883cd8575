// Decoding and encoding a 225-block image of a triplex recorder, beside hand-written code that puts
// the same settings into a flat struct; and transfers through the control. Takes the options of the
// benchmark library.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "bench/allocation_count.h"
#include "bench/flat_agreement.h"
#include "bench/flat_record.h"
#include "bench/ratio_reporter.h"
#include "bench/sample_images.h"
#include "bench/transfer_bench.h"
#include "core/codec.h"

namespace quorvel::bench {
namespace {

/// The image and a record decoded from it.
struct Decoded {
  Decoded() { DecodeImage(image, env, *rec); }
  BlockImage image = TriplexImage();
  RecordEnvironment env;
  std::unique_ptr<MuxData> rec = std::make_unique<MuxData>(env);
};

struct FlatDecoded {
  FlatDecoded() { DecodeFlat(image.data(), *rec); }
  std::vector<Byte> image = [] {
    const BlockImage triplex = TriplexImage();
    return std::vector<Byte>(triplex.Bytes().begin(), triplex.Bytes().end());
  }();
  std::unique_ptr<FlatRecord> rec = std::make_unique<FlatRecord>();
};

void DecodeFresh(Decoded& on) {
  const auto rec = std::make_unique<MuxData>(on.env);
  DecodeImage(on.image, on.env, *rec);
  benchmark::DoNotOptimize(rec.get());
}
void FlatDecodeFresh(FlatDecoded& on) {
  const auto rec = std::make_unique<FlatRecord>();
  DecodeFlat(on.image.data(), *rec);
  benchmark::DoNotOptimize(rec.get());
}
void DecodeReused(Decoded& on) { DecodeImage(on.image, on.env, *on.rec); }
void FlatDecodeReused(FlatDecoded& on) { DecodeFlat(on.image.data(), *on.rec); }
void EncodeAll(Decoded& on) { EncodeImage(on.image, on.env, *on.rec); }
void FlatEncodeAll(FlatDecoded& on) { EncodeFlat(*on.rec, on.image.data()); }
void RoundTrip(Decoded& on) {
  DecodeReused(on);
  EncodeAll(on);
}
void FlatRoundTrip(FlatDecoded& on) {
  FlatDecodeReused(on);
  FlatEncodeAll(on);
}

template <class State>
void Register(const char* name, void (*step)(State&)) {
  RatioReporter::Keep(benchmark::RegisterBenchmark(name, [step](benchmark::State& state) {
    State on;
    for (auto _ : state) {
      step(on);
      benchmark::ClobberMemory();
    }
  }));
}

void RegisterAll() {
  Register("decode_fresh", DecodeFresh);
  Register("flat_decode_fresh", FlatDecodeFresh);
  Register("decode_reused", DecodeReused);
  Register("flat_decode_reused", FlatDecodeReused);
  Register("encode_all", EncodeAll);
  Register("flat_encode_all", FlatEncodeAll);
  Register("round_trip", RoundTrip);
  Register("flat_round_trip", FlatRoundTrip);
  RegisterTransfers();
}

/// The flat code is a limit to compare with only as long as it does the same work.
bool FlatCodeAgrees() {
  constexpr int kRandomImages = 200;
  std::string difference = FlatDisagreement(TriplexImage());
  ImageRandom random(2);
  for (int i = 0; i < kRandomImages && difference.empty(); ++i) {
    difference = FlatDisagreement(RandomImage({6, kMostCameras, 225}, random));
  }
  if (difference.empty()) return true;
  std::fprintf(stderr, "the flat code differs from the record: %s\n", difference.c_str());
  return false;
}

/// Whether a decode into a reused record does without memory of its own.
bool ReportAllocations() {
  Decoded on;
  const auto count = [&on](void (*step)(Decoded&)) {
    const std::size_t before = AllocationCount();
    step(on);
    return AllocationCount() - before;
  };
  const std::size_t fresh = count(DecodeFresh);
  const std::size_t reused = count(DecodeReused);
  std::printf("allocations: %zu in decode_fresh, %zu in decode_reused (%s 0)\n", fresh, reused,
              reused == 0 ? "the bar is" : "OVER the bar of");
  return reused == 0;
}

int Run(int argc, char** argv) {
  if (!FlatCodeAgrees()) return 1;
  // Interleaved repetitions: what else the machine does falls on both sides of a ratio. Options of
  // the command line come later and win.
  std::vector<std::string> options = {"--benchmark_enable_random_interleaving=true",
                                      "--benchmark_repetitions=15", "--benchmark_min_time=0.03",
                                      "--benchmark_report_aggregates_only=true"};
  std::vector<char*> arguments = {argv[0]};
  for (std::string& option : options) arguments.push_back(option.data());
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;

  RegisterAll();
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  std::printf("\n");
  reporter.PrintRatio("decode_fresh", 3.0, 2.0);
  reporter.PrintRatio("decode_reused");
  reporter.PrintRatio("encode_all", 4.5, 2.0);
  reporter.PrintRatio("round_trip", 3.5);
  reporter.PrintTime("download_225_blocks", 50);
  reporter.PrintTime("upload_all_blocks", 100);
  reporter.PrintTime("list_all_settings", 300);
  for (const char* name : {"look_up_first", "look_up_last", "look_up_in_grid"}) {
    reporter.PrintTime(name, 2);
  }
  reporter.PrintTime("find_unallowed", 20);
  reporter.PrintTime("compare_alike", 50);
  reporter.PrintTime("review_1000", 2000);
  reporter.PrintTime("review_1000_after_edit", 2000);
  reporter.PrintTime("open_and_leave_alarms", 88);
  reporter.PrintTime("open_and_leave_record", 60);
  return ReportAllocations() ? 0 : 1;
}

}  // namespace
}  // namespace quorvel::bench

int main(int argc, char** argv) { return quorvel::bench::Run(argc, argv); }
