#pragma once

namespace quorvel {

/// While it lives, the Nth request of this program for memory (from 1, counted from its making)
/// throws std::bad_alloc; those before and after are served. One lives at a time.
class FailingAllocation {
 public:
  explicit FailingAllocation(long nth);
  ~FailingAllocation();
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;

  /// True when there were as many as N.
  [[nodiscard]] bool Struck() const;
};

/// While it lives, nothing fails and nothing is counted: for what is not under test.
class MemoryForAll {
 public:
  MemoryForAll();
  ~MemoryForAll();
  MemoryForAll(const MemoryForAll&) = delete;
  MemoryForAll& operator=(const MemoryForAll&) = delete;

 private:
  bool counted_;
};

}  // namespace quorvel
