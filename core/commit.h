#pragma once

#include <bitset>

#include "quorvel/byte.h"

namespace quorvel {

/// One flag an editor: a record setter lists its block only while the flag of its editor is raised.
enum CommitFlag : Byte {
  CommitTimeDate,
  CommitSequence,
  CommitRecord,
  CommitAlarm,
  CommitMacro,
  CommitMotion,
  CommitCamera,
  CommitComm,
  CommitArchive,
  CommitMenu,
  CommitTelemetry,
  CommitVCR,
};
inline constexpr int kCommitFlagCount = 12;

/// The twelve flags. All start lowered.
class CommitFlags {
 public:
  [[nodiscard]] bool Raised(CommitFlag flag) const { return flags_[flag]; }
  void Set(CommitFlag flag, bool raised) { flags_[flag] = raised; }
  void Clear() { flags_.reset(); }

 private:
  std::bitset<kCommitFlagCount> flags_;
};

/// Raises a flag for the time of one editor's writes; puts it back also when a write throws.
class CommitScope {
 public:
  CommitScope(CommitFlags& flags, CommitFlag flag)
      : flags_(flags), flag_(flag), before_(flags.Raised(flag)) {
    flags_.Set(flag_, true);
  }
  ~CommitScope() { flags_.Set(flag_, before_); }
  CommitScope(const CommitScope&) = delete;
  CommitScope& operator=(const CommitScope&) = delete;

 private:
  CommitFlags& flags_;
  CommitFlag flag_;
  bool before_;
};

}  // namespace quorvel
