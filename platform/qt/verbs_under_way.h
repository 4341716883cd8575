#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace quorvel::qt {

/// Counts the user verbs of one window that have not returned yet. A handler may open a nested loop
/// and close its own window in there; the window's toolkit objects are on the stack then, and must
/// outlast the outermost verb.
class VerbsUnderWay {
 public:
  class Scope {
   public:
    explicit Scope(VerbsUnderWay& verbs) : verbs_(verbs) { ++verbs_.count_; }
    ~Scope() {
      if (--verbs_.count_ > 0) return;
      for (const auto& act : std::exchange(verbs_.last_acts_, {})) act();
    }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    VerbsUnderWay& verbs_;
  };

  /// Runs `act` now, or when the outermost verb returns.
  void Finally(std::function<void()> act) {
    if (count_ == 0) {
      act();
    } else {
      last_acts_.push_back(std::move(act));
    }
  }

 private:
  int count_ = 0;
  std::vector<std::function<void()>> last_acts_;
};

}  // namespace quorvel::qt
