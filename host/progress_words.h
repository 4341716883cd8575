#pragma once

#include <string>

#include "quorvel/transfer.h"

namespace quorvel {

class Platform;
struct Context;

/// How far a transfer has come, in the words of its dialog: "42 of 191, 8 s left". The texts are
/// asked for once: none may be during a transfer.
class ProgressWords {
 public:
  explicit ProgressWords(const Context& context);

  /// A transfer begins.
  void Begin();
  /// Empty for one of a single piece.
  [[nodiscard]] std::string Of(int done, int total) const;

 private:
  const Platform& platform_;
  std::string done_of_;
  std::string seconds_left_;
  TransferPace pace_;
};

}  // namespace quorvel
