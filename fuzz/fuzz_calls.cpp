// Host calls, device replies and user actions in any order, with any bytes.

#include "fuzz/call_player.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel::fuzz;
  constexpr std::uint32_t kThoroughShare = 256;
  CallPlayer({data, size}, IsOneIn(kThoroughShare, {data, size})).Play();
  return 0;
}
