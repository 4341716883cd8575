#include <algorithm>
#include <ostream>

#include "muxhost/script/commands.h"
#include "muxhost/script/parser.h"
#include "muxhost/script/report.h"

namespace quorvel::muxhost::commands {

namespace {

constexpr int kMostTraffic = 1000;
constexpr int kLongestDelay = 60'000;
constexpr int kMostByte = 255;
constexpr int kLastZoneByte = 31;

Fault TakeFault(Words words) {
  const auto kind = FaultKindOf(words[1]);
  if (!kind) throw ScriptError("no such fault: " + words[1]);
  Options options(words.subspan(1));
  Fault fault{.kind = *kind};
  fault.at = options.TakeNumber("at", 1, kMostTraffic).value_or(fault.at);
  if (*kind == FaultKind::kLate) {
    fault.delay_ms = options.TakeNumber("ms", 0, kLongestDelay).value_or(fault.delay_ms);
  }
  options.Finish();
  return fault;
}

/// BYTE=VALUE, each decimal or, after 0x, hexadecimal.
void ChangeByte(std::vector<Byte>& grid, const std::string& word) {
  const auto equals = word.find('=');
  if (equals == std::string::npos) throw ScriptError("zones takes BYTE=VALUE, not " + word);
  const int place = ToAnyNumber("zone byte", word.substr(0, equals), 0, kLastZoneByte);
  const int value = ToAnyNumber("zone value", word.substr(equals + 1), 0, kMostByte);
  grid.at(static_cast<std::size_t>(place)) = static_cast<Byte>(value);
}

}  // namespace

void FaultOnLink(Desk& desk, Words words) {
  if (words.size() == 1) {
    const auto& pending = desk.session.PendingFault();
    desk.out << "fault: " << (pending ? Describe(*pending) : "none") << '\n';
  } else if (words[1] == "none" && words.size() == 2) {
    desk.session.SetFault(std::nullopt);
  } else {
    desk.session.SetFault(TakeFault(words));
  }
}

void Zones(Desk& desk, Words words) {
  const int camera = ToNumber("camera", words[1], 0, kMostByte);
  auto grid = desk.session.ReadZones(camera);
  if (!grid) throw ScriptError("the component has no camera " + words[1]);
  const auto changes = words.subspan(2);
  if (changes.empty()) {
    desk.out << "zones " << camera << ": " << HexBytes(*grid) << '\n';
    return;
  }
  for (const std::string& change : changes) ChangeByte(*grid, change);
  desk.session.WriteZones(camera, *grid);
}

}  // namespace quorvel::muxhost::commands
