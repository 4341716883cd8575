// Random images of every model through decode, encode and decode again: nothing may get lost.

#include <CLI/CLI.hpp>
#include <array>
#include <chrono>
#include <cstdio>
#include <exception>
#include <memory>
#include <string>

#include "bench/sample_images.h"
#include "core/codec.h"

namespace quorvel::bench {
namespace {

constexpr int kModelCodes = 23;  // 0 to 21, and 127
constexpr std::array<Byte, 6> kCameras = {0, 1, 4, 9, 10, 16};
constexpr std::array<int, 8> kBlocks = {185, 199, 200, 213, 217, 219, 225, 255};

/// Consecutive trips go through all shapes.
ImageShape ShapeOf(std::uint64_t trip) {
  const auto code = trip % kModelCodes;
  trip /= kModelCodes;
  const Byte cameras = kCameras[trip % kCameras.size()];
  trip /= kCameras.size();
  return {static_cast<Byte>(code == kModelCodes - 1 ? 127 : code), cameras,
          kBlocks[trip % kBlocks.size()]};
}

/// Encodes all blocks at once, on every eighth trip one by one.
void EncodeAll(std::uint64_t trip, BlockImage& image, RecordEnvironment& env, MuxData& rec) {
  if (trip % 8 != 0) {
    EncodeImage(image, env, rec);
    return;
  }
  for (int block = 1; block <= 255; ++block) EncodeBlock(block, image, env, rec);
}

/// One trip; its number is its seed. True when the record came back as it was.
bool RecordComesBack(std::uint64_t trip) {
  ImageRandom random(trip);
  BlockImage image = RandomImage(ShapeOf(trip), random);
  RecordEnvironment env;
  const auto rec = std::make_unique<MuxData>(env);
  DecodeImage(image, env, *rec);
  EncodeAll(trip, image, env, *rec);
  RecordEnvironment again_env;
  const auto again = std::make_unique<MuxData>(again_env);
  DecodeImage(image, again_env, *again);
  return *again == *rec;
}

void Complain(std::uint64_t trip, const std::string& what) {
  const ImageShape shape = ShapeOf(trip);
  std::fprintf(stderr, "trip %llu (model code %d, %d cameras, %d blocks): %s\n",
               static_cast<unsigned long long>(trip), shape.model_code, shape.cameras, shape.blocks,
               what.c_str());
}

bool Succeeds(std::uint64_t trip) {
  try {
    if (RecordComesBack(trip)) return true;
    Complain(trip, "the record came back different");
  } catch (const std::exception& failure) {
    Complain(trip, failure.what());
  }
  return false;
}

int Run(std::uint64_t count, std::uint64_t first) {
  const auto start = std::chrono::steady_clock::now();
  std::uint64_t failures = 0;
  for (std::uint64_t trip = first; trip - first < count; ++trip) failures += !Succeeds(trip);
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  std::printf("%llu trips in %.1f seconds, %llu failures\n", static_cast<unsigned long long>(count),
              seconds.count(), static_cast<unsigned long long>(failures));
  return failures == 0 ? 0 : 1;
}

}  // namespace
}  // namespace quorvel::bench

int main(int argc, char** argv) {
  constexpr std::int64_t kMostTrips = 1'000'000'000'000;
  CLI::App app("Sends random images of every model through decode, encode and decode again.");
  std::int64_t count = 1'000'000;
  std::int64_t first = 0;
  app.add_option("count", count, "number of trips")
      ->capture_default_str()
      ->check(CLI::Range(std::int64_t{1}, kMostTrips));
  app.add_option("--first", first, "number of the first trip, to repeat one that failed")
      ->capture_default_str()
      ->check(CLI::Range(std::int64_t{0}, kMostTrips));
  CLI11_PARSE(app, argc, argv);
  return quorvel::bench::Run(static_cast<std::uint64_t>(count), static_cast<std::uint64_t>(first));
}
