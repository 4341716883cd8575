#pragma once

#include <optional>
#include <string>
#include <vector>

#include "muxhost/host_session.h"
#include "muxhost/texts/speech.h"

namespace quorvel::muxhost {

/// What an upload brings that its user may not think of.
struct GoingAlong {
  /// A model below code 6 sets its clock to what block 61 holds, for whatever reason it is sent; a
  /// triplex takes it when it is told to. False where no clock goes, or one that the user has just
  /// set.
  bool clock_goes = false;
  /// That clock; nothing for one that no calendar has.
  std::optional<LocalTime> clock = {};
  /// Changes of ports that the host's own link may use: "the network address from 3 to 5".
  std::vector<std::string> ports = {};
};

/// What goes along with an upload of all blocks, or of the modified ones, with macros or without.
/// `now` is this computer's time.
[[nodiscard]] GoingAlong WhatGoesAlong(HostSession& session, bool all, bool macros,
                                       const LocalTime& now, const Speech& say = InEnglish);

/// "The device's clock goes along: 2026-11-23 10:42:07, 25 minutes behind this computer."
[[nodiscard]] std::string ClockInWords(const std::optional<LocalTime>& clock, const LocalTime& now,
                                       const Speech& say = InEnglish);
/// "Ports change that the link may use: the network address from 3 to 5."
[[nodiscard]] std::string PortsInWords(const std::vector<std::string>& ports,
                                       const Speech& say = InEnglish);

}  // namespace quorvel::muxhost
