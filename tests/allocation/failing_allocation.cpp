#include "tests/allocation/failing_allocation.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace {

bool counting = false;
long to_go = 0;  // requests until the one that fails; below 1 after it

bool Fails() { return counting && --to_go == 0; }

}  // namespace

void* operator new(std::size_t size) {
  if (!Fails()) {
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
  }
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return Fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
}
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
  return operator new(size, tag);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

namespace quorvel {

FailingAllocation::FailingAllocation(long nth) {
  to_go = nth;
  counting = true;
}

FailingAllocation::~FailingAllocation() { counting = false; }

bool FailingAllocation::Struck() const { return to_go <= 0; }

MemoryForAll::MemoryForAll() : counted_(std::exchange(counting, false)) {}
MemoryForAll::~MemoryForAll() { counting = counted_; }

}  // namespace quorvel
