#include "apps/muxhost/script_commands.h"
#include "apps/muxhost/script_parser.h"

namespace quorvel::muxhost::commands {

namespace {

constexpr int kMostByte = 255;
constexpr int kMostFirmwareFraction = 99;
constexpr int kMostLatency = 60'000;

/// A text in the bytes that a device holds; every character must have one.
std::string ToDeviceBytes(const Desk& desk, const std::string& what, const std::string& text) {
  std::string bytes = desk.platform.FromUtf8(text);
  if (desk.platform.ToUtf8(bytes) != text) {
    throw ScriptError(what + " has a character that the device lacks: \"" + text + "\"");
  }
  return bytes;
}

std::optional<char> TakeVariant(const Desk& desk, Options& options) {
  const auto text = options.Take("variant");
  if (!text) return std::nullopt;
  const std::string bytes = ToDeviceBytes(desk, "variant", *text);
  if (bytes.size() != 1) throw ScriptError("variant must be one character, not \"" + *text + "\"");
  return bytes.front();
}

/// A version as 5.06. It travels in the combined exchange alone, so it is checked and not kept.
void TakeFirmware(Options& options) {
  const auto text = options.Take("firmware");
  if (!text) return;
  const auto dot = text->find('.');
  if (dot == std::string::npos)
    throw ScriptError("firmware must be as 5.06, not \"" + *text + "\"");
  static_cast<void>(ToNumber("firmware before the dot", text->substr(0, dot), 0, kMostByte));
  static_cast<void>(
      ToNumber("firmware after the dot", text->substr(dot + 1), 0, kMostFirmwareFraction));
}

void RefuseCombined(Options& options) {
  if (options.TakeWord("combined") || options.Take("macros")) {
    throw ScriptError("this version does not have the combined exchange");
  }
}

DeviceSetup TakeSetup(const Desk& desk, Options& options) {
  DeviceSetup setup;
  setup.model = options.TakeNumber("model").value_or(setup.model);
  setup.cameras = options.TakeNumber("cameras").value_or(setup.cameras);
  setup.blocks = options.TakeNumber("blocks");
  setup.variant = TakeVariant(desk, options);
  if (const auto name = options.Take("name")) setup.name = ToDeviceBytes(desk, "name", *name);
  return setup;
}

}  // namespace

void Device(Desk& desk, Words words) {
  RequireUnlocked(desk);
  Options options(words);
  RefuseCombined(options);
  TakeFirmware(options);
  if (const auto file = options.Take("image")) {
    // The file says what the device is; a key that contradicted it would have no effect.
    options.Finish(" with image=");
    desk.session.Connect(SimulatedDevice(desk.platform.ReadFile(*file)));
    return;
  }
  const DeviceSetup setup = TakeSetup(desk, options);
  options.Finish();
  desk.session.Connect(SimulatedDevice(setup));
}

void Host(Desk& desk, Words words) {
  Options options(words);
  HostSettings settings;
  settings.family = options.TakeNumber("family", 0, kMostByte);
  settings.dvr = options.TakeNumber("dvr", 0, 1).value_or(1) == 1;
  settings.comm_id = options.TakeNumber("commid", 0, kMostByte).value_or(settings.comm_id);
  settings.link = options.TakeNumber("link", 0, 1).value_or(settings.link);
  settings.sync = options.TakeWord("sync");
  settings.latency_ms =
      options.TakeNumber("latency", 0, kMostLatency).value_or(settings.latency_ms);
  options.Finish();
  desk.session.Configure(settings);
}

}  // namespace quorvel::muxhost::commands
