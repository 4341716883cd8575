#include <array>

#include "quorvel/identity.h"

namespace quorvel {

namespace {

constexpr std::array<std::string_view, 21> kModelTexts = {
    "Mux model",
    "DVR model",
    "Duplex NTSC",
    "Duplex PAL",
    "Duplex NTSC, Lite/EZ",
    "Duplex PAL, Lite/EZ",
    "Triplex NTSC",
    "Triplex PAL",
    "Triplex NTSC, Lite/EZ",
    "Triplex PAL, Lite/EZ",
    "Triplex NTSC, Vaultline",
    "Triplex PAL, Vaultline",
    "Triplex NTSC, Advance Vaultline",
    "Triplex PAL, Advance Vaultline",
    "Triplex NTSC, Matrix",
    "Triplex PAL, Matrix",
    "Triplex NTSC, 4L",
    "Triplex PAL, 4L",
    "Triplex NTSC, Plexar Pro",
    "Triplex PAL, Plexar Pro",
    "Triplex PAL, Brevmoor Airport",
};

}  // namespace

std::string_view ModelText(int code) {
  const bool known = code >= 0 && code < static_cast<int>(kModelTexts.size());
  return known ? kModelTexts[static_cast<std::size_t>(code)] : std::string_view();
}

}  // namespace quorvel
