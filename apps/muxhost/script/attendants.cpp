#include "muxhost/script/attendants.h"

#include <utility>

#include "muxhost/script/parser.h"
#include "muxhost/script/report.h"

namespace quorvel::muxhost {

namespace {

template <class Control>
void PressControl(Dialog& dialog, const char* name) {
  const Answer answer = dialog.Find<Control>(name).Click();
  if (answer != Answer::kDone) throw ScriptError(std::string(name) + " " + Describe(answer));
}

/// "225 blocks", "225 blocks and macros", "macros".
std::string ArrayParts(const Exchange& exchange) {
  const auto blocks = exchange.sent_blocks.size();
  std::string parts = blocks == 0 ? "" : std::to_string(blocks) + " blocks";
  if (!exchange.sent_macros.empty()) parts += parts.empty() ? "macros" : " and macros";
  return parts.empty() ? "nothing" : parts;
}

}  // namespace

bool Receiver::Act(Dialog& dialog) {
  opened_ = true;
  bytes_ = dialog.Find<Label>("Label3").Caption();
  status_ = dialog.Find<Label>("Label4").Caption();
  finished_ = dialog.Find<Button>("cmdOK").Enabled();
  if (finished_) PressControl<Button>(dialog, "cmdOK");
  return finished_;
}

bool Sender::Act(Dialog& dialog) {
  if (!opened_) {
    opened_ = true;
    PressControl<Button>(dialog, Choose(dialog) ? "cmdOK" : "cmdCancel");
    return true;
  }
  const auto& panels = dialog.Find<StatusBar>("StatusBar1");
  panels_ = panels.ValueText();
  status_ = panels.Panel(3);
  finished_ = HasEnded(dialog);
  if (finished_) PressControl<Button>(dialog, "cmdCancel");
  return finished_;
}

/// The dialog turns choices back that it does not offer.
bool Sender::Choose(Dialog& dialog) {
  if (!choice_.data) {
    PressControl<CheckBox>(dialog, "chkMacro(1)");
    if (dialog.Find<CheckBox>("chkMacro(1)").Checked()) refusal_ = "block data is not left out";
  } else {
    PressControl<OptionButton>(dialog, choice_.modified ? "optBlk(1)" : "optBlk(0)");
    const bool chosen = dialog.Find<OptionButton>("optBlk(1)").Selected();
    if (choice_.modified && !chosen) refusal_ = "no modified blocks";
  }
  if (!refusal_.empty()) return false;
  if (choice_.macros) PressControl<CheckBox>(dialog, "chkMacro(0)");
  return true;
}

bool Sender::HasEnded(const Dialog& dialog) const {
  const Exchange& exchange = session_.LastExchange();
  const bool sent = exchange.end_written || exchange.array_bytes > 0;
  return sent && !dialog.Find<Button>("cmdStop").Visible();
}

std::string Sender::Outcome() const {
  if (!opened_) return "upload: " + Window() + " did not open";
  if (!refusal_.empty()) return "upload: " + refusal_;
  const Exchange& exchange = session_.LastExchange();
  if (exchange.array_bytes > 0) {
    const std::string what =
        ArrayParts(exchange) + ", " + std::to_string(exchange.array_bytes) + " bytes";
    if (!exchange.array_taken) return "upload not taken by the device: " + what;
    return (finished_ ? "uploaded " : "upload closed meanwhile: ") + what + ": " + status_;
  }
  const std::string blocks = AbbreviateRuns(exchange.blocks_written);
  if (finished_) return "uploaded blocks " + blocks + ": " + status_;
  return "upload not finished, closed: blocks " + blocks + ", StatusBar1 " + panels_;
}

void RunAttended(Desk& desk, Attendant& attendant, void (HostSession::*transfer)()) {
  struct Seat {
    explicit Seat(Desk& at, Attendant& who) : desk(at) { desk.attendant = &who; }
    ~Seat() { desk.attendant = nullptr; }
    Seat(const Seat&) = delete;
    Seat& operator=(const Seat&) = delete;
    Desk& desk;
  };
  const Seat seat(desk, attendant);
  (desk.session.*transfer)();
  desk.platform.RunUntilIdle();
  static_cast<void>(desk.platform.TakeStalled());  // the outcome tells it
  if (desk.failure) std::rethrow_exception(std::exchange(desk.failure, nullptr));
}

}  // namespace quorvel::muxhost
