#pragma once

#include <optional>
#include <string>
#include <vector>

#include "apps/muxhost/host_session.h"

namespace quorvel::muxhost {

/// What an upload brings that its user may not think of.
struct GoingAlong {
  /// A model below code 6 sets its clock to what block 61 holds, for whatever reason it is sent:
  /// to this one, which came with the configuration. Nothing where no clock goes, or one that the
  /// user has set.
  std::optional<LocalTime> clock = {};
  /// Changes of ports that the host's own link may use: "the network address from 3 to 5".
  std::vector<std::string> ports = {};
};

/// What goes along with an upload of all blocks, or of the modified ones.
[[nodiscard]] GoingAlong WhatGoesAlong(HostSession& session, bool all);

/// "The device's clock goes along: 2026-11-23 10:42:07, 25 minutes behind this computer."
[[nodiscard]] std::string ClockInWords(const LocalTime& clock, const LocalTime& now);
/// "Ports change that the link may use: the network address from 3 to 5."
[[nodiscard]] std::string PortsInWords(const std::vector<std::string>& ports);

}  // namespace quorvel::muxhost
