#include "host/transfer_run.h"

#include <string>

#include "ui/context.h"

namespace quorvel {

namespace {

const char* NameOf(TransferKind which) {
  return which == TransferKind::kSend ? "the send " : "the receive ";
}

const char* NameOf(TransferEnd end) {
  switch (end) {
    case TransferEnd::kFinished: return "has finished";
    case TransferEnd::kStopped: return "was stopped";
    case TransferEnd::kRefused: return "was refused";
    case TransferEnd::kFailed: return "has failed";
  }
  return "";
}

LogLevel LevelOf(TransferEnd end) {
  if (end == TransferEnd::kFailed) return LogLevel::kError;
  return end == TransferEnd::kRefused ? LogLevel::kWarning : LogLevel::kInformation;
}

/// Without memory for it, a line of the log is left out: transfers go on.
template <class Line>
void Log(const Edges& edges, LogLevel level, Line&& line) noexcept {
  try {
    edges.Log(level, line());
  } catch (...) {
  }
}

/// Runs a call of the observer, whose failures are its own.
template <class Body>
void Call(const Edges& edges, Body&& body) noexcept {
  try {
    body();
  } catch (...) {
    Log(edges, LogLevel::kError,
        [] { return "the observer of transfers has failed: " + FailureReason(); });
  }
}

}  // namespace

void TransferRun::Begin(bool quiet) {
  under_way_ = true;
  quiet_ = quiet;
  done_ = 0;
  total_ = 0;
  Log(context_.edges, LogLevel::kInformation,
      [this] { return std::string(NameOf(which_)) + "has begun"; });
}

void TransferRun::Advance(int done, int total) {
  if (!under_way_ || (done == done_ && total == total_)) return;
  done_ = done;
  total_ = total;
  Call(context_.edges, [&] { host_.Observer().Progress(which_, done, total); });
}

void TransferRun::End(TransferEnd end, std::string_view cause) {
  if (!under_way_) return;
  under_way_ = false;
  TellEnd(end, cause);
}

void TransferRun::Refuse(std::string_view cause) { TellEnd(TransferEnd::kRefused, cause); }

void TransferRun::TellEnd(TransferEnd end, std::string_view cause) {
  Log(context_.edges, LevelOf(end), [&] {
    std::string line = std::string(NameOf(which_)) + NameOf(end);
    if (end != TransferEnd::kRefused && total_ != 0) {
      line += ", " + std::to_string(done_) + " of " + std::to_string(total_);
    }
    return cause.empty() ? line : line.append(": ").append(cause);
  });
  Call(context_.edges, [&] { host_.Observer().Ended(which_, end, cause); });
}

}  // namespace quorvel
