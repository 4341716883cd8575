#include <ostream>

#include "muxhost/going_along.h"
#include "muxhost/script/attendants.h"
#include "muxhost/script/commands.h"
#include "muxhost/script/parser.h"
#include "muxhost/script/report.h"

namespace quorvel::muxhost::commands {

namespace {

std::string DownloadOutcome(const HostSession& session, const Receiver& receiver) {
  const Exchange& exchange = session.LastExchange();
  const std::string blocks = std::to_string(exchange.blocks_read) + " blocks";
  if (session.Settings().comm_id != 0) {
    if (!exchange.arrived) return "download not finished: " + blocks;
    return "downloaded " + blocks + ", " + std::to_string(exchange.bytes_read) +
           " bytes: ULSucceededWithStr";
  }
  if (!receiver.Opened()) return "download: " + receiver.Window() + " did not open";
  if (receiver.Finished()) {
    return "downloaded " + blocks + ", " + receiver.Bytes() + " bytes: " + receiver.Status();
  }
  // Closing the dialog does not stop a combined array that is on its way.
  return (exchange.arrived ? "download closed, arrived after that: "
                           : "download not finished, closed: ") +
         blocks + ", Label3 " + Quoted(receiver.Bytes()) + ", Label4 " + Quoted(receiver.Status());
}

/// "read back: 225 blocks and macros as sent"; "read back differs: 12 40 macros".
std::string Describe(const ReadBack& result) {
  if (!result.AsSent()) {
    std::string text = "read back differs:";
    if (!result.differ.empty()) text += " " + AbbreviateRuns(result.differ);
    return result.macros_differ ? text + " macros" : text;
  }
  std::string what;
  if (result.blocks > 0) {
    what = std::to_string(result.blocks) + (result.blocks == 1 ? " block" : " blocks");
  }
  if (result.macros) what += what.empty() ? "macros" : " and macros";
  return "read back: " + what + " as sent";
}

bool HasHold(Words words, std::size_t at) {
  if (words.size() <= at) return false;
  if (words[at] == "hold") return true;
  throw ScriptError(words[0] + " does not take " + words[at]);
}

SendChoice TakeChoice(Words words) {
  SendChoice choice;
  choice.modified = words[1] == "modified";
  choice.data = words[1] != "none";
  if (choice.data && !choice.modified && words[1] != "all") {
    throw ScriptError("upload does not take " + words[1]);
  }
  choice.macros = words.size() == 3;
  if (choice.macros && words[2] != "macros") throw ScriptError("upload does not take " + words[2]);
  return choice;
}

}  // namespace

void Download(Desk& desk, Words words) {
  RequireUnlocked(desk);
  RequireDevice(desk);
  if (HasHold(words, 1)) {
    desk.session.Download();
    return;
  }
  Receiver receiver;
  RunAttended(desk, receiver, &HostSession::Download);
  desk.out << DownloadOutcome(desk.session, receiver) << '\n';
}

void Upload(Desk& desk, Words words) {
  RequireUnlocked(desk);
  RequireDevice(desk);
  if (words.size() == 2 && words[1] == "hold") {
    desk.session.Upload();
    return;
  }
  Sender sender(desk.session, TakeChoice(words));
  RunAttended(desk, sender, &HostSession::Upload);
  desk.out << sender.Outcome() << '\n';
  const auto& result = desk.session.LastExchange().read_back;
  if (result) desk.out << Describe(*result) << '\n';
}

void GoesAlong(Desk& desk, Words words) {
  RequireDevice(desk);
  const SendChoice choice = TakeChoice(words);
  const LocalTime now = desk.platform.Now();
  const GoingAlong along = WhatGoesAlong(desk.session, !choice.modified, choice.macros, now);
  if (along.clock_goes) desk.out << ClockInWords(along.clock, now) << '\n';
  if (!along.ports.empty()) desk.out << PortsInWords(along.ports) << '\n';
  if (!along.clock_goes && along.ports.empty()) desk.out << "nothing goes along\n";
}

void PcTime(Desk& desk, Words /*words*/) { desk.session.Control().UsePcTime(true); }

void Save(Desk& desk, Words words) {
  RequireUnlocked(desk);
  desk.platform.named_file = words[1];
  desk.platform.written.reset();
  desk.session.Save();
  desk.platform.named_file.reset();
  const auto& written = desk.platform.written;
  desk.out << (written ? "saved " + std::to_string(*written) + " bytes\n" : "not saved\n");
}

void Restore(Desk& desk, Words words) {
  RequireUnlocked(desk);
  RequireDevice(desk);
  desk.platform.named_file = words[1];
  Receiver receiver;
  RunAttended(desk, receiver, &HostSession::Restore);
  desk.platform.named_file.reset();
  desk.out << (receiver.Finished() ? "restored " + receiver.Bytes() + " bytes: " + receiver.Status()
                                   : "not restored")
           << '\n';
}

void Defaults(Desk& desk, Words /*words*/) {
  RequireUnlocked(desk);
  RequireDevice(desk);
  desk.session.BuildDefaults();
  desk.platform.RunUntilIdle();
  desk.out << (desk.session.LastExchange().arrived ? "defaults loaded\n" : "defaults not loaded\n");
}

}  // namespace quorvel::muxhost::commands
