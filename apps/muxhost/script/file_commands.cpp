#include <ostream>

#include "muxhost/compare_files.h"
#include "muxhost/script/commands.h"
#include "muxhost/script/parser.h"

namespace quorvel::muxhost::commands {

namespace {

void TellLoaded(Desk& desk, const LoadAnswer& answer, const char* done) {
  if (!answer) {
    desk.out << "not " << done << ": " << answer.cause << '\n';
    return;
  }
  desk.out << done << ": " << desk.session.Device().BlockCount() << " blocks\n";
  if (!answer.cause.empty()) desk.out << answer.cause << '\n';
}

}  // namespace

void RequireDevice(const Desk& desk) {
  if (!desk.session.HasDevice()) throw ScriptError("no device is connected");
}

void Open(Desk& desk, Words words) {
  RequireUnlocked(desk);
  TellLoaded(desk, desk.session.Open(desk.platform.ReadFile(words[1])), "opened");
}

void New(Desk& desk, Words words) {
  RequireUnlocked(desk);
  Options options(words);
  const DeviceSetup setup = TakeSetup(desk, options);
  options.Finish();
  TellLoaded(desk, desk.session.OpenDefaults(setup), "new");
}

void Connect(Desk& desk, Words words) {
  RequireUnlocked(desk);
  if (desk.session.HasDevice()) throw ScriptError("a device is connected; `device` replaces it");
  const std::string mismatch = desk.session.ConnectToOpen(TakeDevice(desk, words));
  desk.out << (mismatch.empty() ? "connected" : "not connected: " + mismatch) << '\n';
}

void Compare(Desk& desk, Words words) {
  const Comparison comparison =
      CompareFiles(desk.platform.ReadFile(words[1]), desk.platform.ReadFile(words[2]));
  if (!comparison.refusal.empty()) throw ScriptError(comparison.refusal);
  if (comparison.lines.empty()) desk.out << "compare: none\n";
  for (const std::string& line : comparison.lines) desk.out << line << '\n';
}

}  // namespace quorvel::muxhost::commands
