#include "core/edit_history.h"

#include <utility>

namespace quorvel {

void EditHistory::Add(StepName name, Holdings before) {
  // Some 10 KB a step.
  constexpr std::size_t kMostSteps = 200;
  undone_.clear();
  done_.push_back({std::move(name), std::move(before)});
  if (done_.size() > kMostSteps) done_.pop_front();
}

void EditHistory::Clear() {
  done_.clear();
  undone_.clear();
}

std::optional<Holdings> EditHistory::Move(Steps& from, Steps& to, Holdings present) {
  if (from.empty()) return std::nullopt;
  to.push_back({from.back().name, std::move(present)});
  std::optional<Holdings> there = std::move(from.back().holdings);
  from.pop_back();
  return there;
}

}  // namespace quorvel
