#include <exception>
#include <ostream>
#include <utility>

#include "apps/muxhost/script_commands.h"
#include "apps/muxhost/script_parser.h"
#include "apps/muxhost/script_report.h"

namespace quorvel::muxhost::commands {

namespace {

template <class Control>
void PressControl(Dialog& dialog, const char* name) {
  const Answer answer = dialog.Find<Control>(name).Click();
  if (answer != Answer::kDone) throw ScriptError(std::string(name) + " " + Describe(answer));
}

/// Waits at the receive dialog until the data has arrived, then presses OK.
class Receiver : public Attendant {
 public:
  Receiver() : Attendant("frm_ULFrMux") {}

  bool Act(Dialog& dialog) override {
    opened_ = true;
    bytes_ = dialog.Find<Label>("Label3").Caption();
    status_ = dialog.Find<Label>("Label4").Caption();
    finished_ = dialog.Find<Button>("cmdOK").Enabled();
    if (finished_) PressControl<Button>(dialog, "cmdOK");
    return finished_;
  }

  [[nodiscard]] std::string Outcome(int blocks) const {
    if (!opened_) return "download: " + Window() + " did not open";
    if (finished_) {
      return "downloaded " + std::to_string(blocks) + " blocks, " + bytes_ + " bytes: " + status_;
    }
    return "download not finished, closed: " + std::to_string(blocks) + " blocks, Label3 " +
           Quoted(bytes_) + ", Label4 " + Quoted(status_);
  }

 private:
  bool opened_ = false;
  bool finished_ = false;
  std::string bytes_;
  std::string status_;
};

/// Starts a send at the send dialog, waits for its end and presses CLOSE.
class Sender : public Attendant {
 public:
  Sender(const HostSession& session, bool modified, bool macros)
      : Attendant("frm_ToMux"), session_(session), modified_(modified), macros_(macros) {}

  bool Act(Dialog& dialog) override {
    if (!opened_) {
      opened_ = true;
      Start(dialog);
      return true;
    }
    const auto& panels = dialog.Find<StatusBar>("StatusBar1");
    panels_ = panels.ValueText();
    status_ = panels.Panel(3);
    finished_ = session_.LastExchange().end_written && !dialog.Find<Button>("cmdStop").Visible();
    if (finished_) PressControl<Button>(dialog, "cmdCancel");
    return finished_;
  }

  [[nodiscard]] std::string Outcome() const {
    if (!opened_) return "upload: " + Window() + " did not open";
    if (nothing_modified_) return "upload: no modified blocks";
    const std::string blocks = AbbreviateRuns(session_.LastExchange().blocks_written);
    if (finished_) return "uploaded blocks " + blocks + ": " + status_;
    return "upload not finished, closed: blocks " + blocks + ", StatusBar1 " + panels_;
  }

 private:
  void Start(Dialog& dialog) {
    PressControl<OptionButton>(dialog, modified_ ? "optBlk(1)" : "optBlk(0)");
    // Without modified blocks the dialog turns the choice back to all of them.
    nothing_modified_ = modified_ && !dialog.Find<OptionButton>("optBlk(1)").Selected();
    if (nothing_modified_) {
      PressControl<Button>(dialog, "cmdCancel");
      return;
    }
    if (macros_) PressControl<CheckBox>(dialog, "chkMacro(0)");
    PressControl<Button>(dialog, "cmdOK");
  }

  const HostSession& session_;
  bool modified_;
  bool macros_;
  bool opened_ = false;
  bool nothing_modified_ = false;
  bool finished_ = false;
  std::string panels_;
  std::string status_;
};

/// Runs a transfer with somebody at its dialog until nothing is left to happen.
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

std::string WholeImageOutcome(const HostSession& session) {
  const std::string blocks = std::to_string(session.LastExchange().blocks_read) + " blocks";
  if (!session.LastExchange().arrived) return "download not finished: " + blocks;
  return "downloaded " + blocks + ", " + std::to_string(session.Device().Bytes().size()) +
         " bytes: ULSucceededWithStr";
}

bool HasHold(Words words, std::size_t at) {
  if (words.size() <= at) return false;
  if (words[at] == "hold") return true;
  throw ScriptError(words[0] + " does not take " + words[at]);
}

}  // namespace

void Download(Desk& desk, Words words) {
  RequireUnlocked(desk);
  if (HasHold(words, 1)) {
    desk.session.Download();
    return;
  }
  Receiver receiver;
  RunAttended(desk, receiver, &HostSession::Download);
  desk.out << (desk.session.Settings().comm_id != 0
                   ? WholeImageOutcome(desk.session)
                   : receiver.Outcome(desk.session.LastExchange().blocks_read))
           << '\n';
}

void Upload(Desk& desk, Words words) {
  RequireUnlocked(desk);
  if (words.size() == 2 && words[1] == "hold") {
    desk.session.Upload();
    return;
  }
  const bool modified = words[1] == "modified";
  if (!modified && words[1] != "all") throw ScriptError("upload does not take " + words[1]);
  if (words.size() == 3 && words[2] != "macros") {
    throw ScriptError("upload does not take " + words[2]);
  }
  Sender sender(desk.session, modified, words.size() == 3);
  RunAttended(desk, sender, &HostSession::Upload);
  desk.out << sender.Outcome() << '\n';
}

}  // namespace quorvel::muxhost::commands
