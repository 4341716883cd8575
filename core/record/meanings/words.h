#pragma once

#include "core/meaning.h"

namespace quorvel {

// Meanings that settings of several records have.

struct OffOn : Words<"OFF", "ON"> {};
struct NoYes : Words<"NO", "YES"> {};
struct DisableEnable : Words<"DISABLE", "ENABLE"> {};
/// A contact at rest.
struct ClosedOpen : Words<"N/CLOSED", "N/OPEN"> {};
/// The relays that something switches.
struct Relays : Words<"NONE", "1", "2", "1+2"> {};

/// A number of one of the cameras, which count from 0.
struct CameraIndex : NoUnit {
  static constexpr Range Limits(const Identity& id) { return {0, id.MaxCam - 1}; }
};
/// The same, or the number behind the last camera for none of them.
template <Literal word>
struct CameraIndexOr : CameraIndex {
  static constexpr auto kCodes = [] {
    std::array<Code, kMostCameras + 1> codes;
    for (int cameras = 0; cameras <= kMostCameras; ++cameras) {
      codes.at(static_cast<std::size_t>(cameras)) = {cameras, word.text};
    }
    return codes;
  }();
  static constexpr std::span<const Code> Codes(const Identity& id) {
    return std::span(kCodes).subspan(std::min<std::size_t>(id.MaxCam, kMostCameras), 1);
  }
};
/// Macros and presets, of which a device has as many as cameras.
struct OnePerCamera : NoUnit {
  static constexpr Range Limits(const Identity& id) { return {1, std::max<int>(id.MaxCam, 1)}; }
};

}  // namespace quorvel
