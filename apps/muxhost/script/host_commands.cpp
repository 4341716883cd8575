#include "muxhost/script/commands.h"
#include "muxhost/script/parser.h"
#include "muxhost/texts/languages.h"

namespace quorvel::muxhost::commands {

namespace {

constexpr int kMostByte = 255;
constexpr int kMostWord = 65535;
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

/// A version as 5.06.
void TakeFirmware(Options& options, CombinedSetup& combined) {
  const auto text = options.Take("firmware");
  if (!text) return;
  const auto dot = text->find('.');
  if (dot == std::string::npos) {
    throw ScriptError("firmware must be as 5.06, not \"" + *text + "\"");
  }
  combined.firmware_major = ToNumber("firmware before the dot", text->substr(0, dot), 0, kMostByte);
  combined.firmware_minor =
      ToNumber("firmware after the dot", text->substr(dot + 1), 0, kMostFirmwareFraction);
}

/// Records and the size of each as 16x64.
bool TakeMacros(Options& options, CombinedSetup& combined) {
  const auto text = options.Take("macros");
  if (!text) return false;
  const auto x = text->find('x');
  if (x == std::string::npos) throw ScriptError("macros must be as 16x64, not \"" + *text + "\"");
  combined.macros = ToNumber("macro records", text->substr(0, x), 0, kMostByte);
  combined.macro_size = ToNumber("macro record size", text->substr(x + 1), 0, kMostWord);
  return true;
}

/// The firmware version travels in the combined exchange alone; without it, it is only checked.
std::optional<CombinedSetup> TakeCombined(Options& options) {
  CombinedSetup combined;
  const bool chosen = options.TakeWord("combined");
  TakeFirmware(options, combined);
  if (TakeMacros(options, combined) && !chosen) {
    throw ScriptError("macros belong to a combined device");
  }
  if (!chosen) return std::nullopt;
  CheckSetup(combined);
  return combined;
}

}  // namespace

DeviceSetup TakeSetup(const Desk& desk, Options& options) {
  DeviceSetup setup;
  setup.model = options.TakeNumber("model").value_or(setup.model);
  setup.cameras = options.TakeNumber("cameras").value_or(setup.cameras);
  setup.variant = TakeVariant(desk, options);
  if (const auto name = options.Take("name")) setup.name = ToDeviceBytes(desk, "name", *name);
  return setup;
}

SimulatedDevice TakeDevice(Desk& desk, Words words) {
  Options options(words);
  const auto combined = TakeCombined(options);
  if (const auto file = options.Take("image")) {
    // The file says what the device is; a key that contradicted it would have no effect.
    options.Finish(" with image=");
    return SimulatedDevice(desk.platform.ReadFile(*file), combined);
  }
  DeviceSetup setup = TakeSetup(desk, options);
  setup.blocks = options.TakeNumber("blocks");
  setup.combined = combined;
  options.Finish();
  return SimulatedDevice(setup);
}

void Device(Desk& desk, Words words) {
  RequireUnlocked(desk);
  desk.session.Connect(TakeDevice(desk, words));
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

void SpeakLanguage(Desk& desk, Words words) {
  RequireUnlocked(desk);
  const ChosenLanguage chosen = ChooseLanguage(words[1], LocalesOfEnvironment());
  for (const std::string& finding : chosen.findings) desk.out << finding << '\n';
  Speak(desk.platform, desk.session, chosen.language);
  desk.say = SpeechIn(chosen.language);
}

namespace {

/// `text` is what the step is called.
void GoAStep(Desk& desk, Words words, const std::string& text, bool (MainMenuCtrl::*go)()) {
  if (words[1] != "control") throw ScriptError("usage: " + words[0] + " control");
  RequireUnlocked(desk);
  const bool gone = (desk.session.Control().*go)();
  desk.out << words[0] << ": " << (gone ? text : "nothing") << '\n';
}

}  // namespace

void Undo(Desk& desk, Words words) {
  GoAStep(desk, words, desk.session.Control().UndoText(), &MainMenuCtrl::Undo);
}

void Redo(Desk& desk, Words words) {
  GoAStep(desk, words, desk.session.Control().RedoText(), &MainMenuCtrl::Redo);
}

}  // namespace quorvel::muxhost::commands
