#pragma once

#include <string>

#include "muxhost/script/desk.h"

namespace quorvel::muxhost {

/// Waits at the receive dialog until the data is there, then presses OK.
class Receiver : public Attendant {
 public:
  Receiver() : Attendant("frm_ULFrMux") {}

  bool Act(Dialog& dialog) override;

  [[nodiscard]] bool Opened() const { return opened_; }
  [[nodiscard]] bool Finished() const { return finished_; }
  [[nodiscard]] const std::string& Bytes() const { return bytes_; }
  [[nodiscard]] const std::string& Status() const { return status_; }

 private:
  bool opened_ = false;
  bool finished_ = false;
  std::string bytes_;
  std::string status_;
};

/// What an upload sends.
struct SendChoice {
  bool data = true;       ///< block data; only the combined exchange can leave it out
  bool modified = false;  ///< the modified blocks only
  bool macros = false;    ///< macro data or macro blocks
};

/// Starts a send at the send dialog, waits for its end and presses CLOSE.
class Sender : public Attendant {
 public:
  Sender(const HostSession& session, const SendChoice& choice)
      : Attendant("frm_ToMux"), session_(session), choice_(choice) {}

  bool Act(Dialog& dialog) override;

  /// How it ended, in a line.
  [[nodiscard]] std::string Outcome() const;

 private:
  bool Choose(Dialog& dialog);
  [[nodiscard]] bool HasEnded(const Dialog& dialog) const;

  const HostSession& session_;
  SendChoice choice_;
  bool opened_ = false;
  bool finished_ = false;
  std::string refusal_;  ///< why it could not be started as chosen
  std::string panels_;
  std::string status_;
};

/// Runs a transfer with a user at its dialog until nothing is left to happen.
void RunAttended(Desk& desk, Attendant& attendant, void (HostSession::*transfer)());

}  // namespace quorvel::muxhost
