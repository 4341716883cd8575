#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace quorvel::fuzz {

/// Ends the run when something that must hold does not; libFuzzer then keeps the input.
inline void Check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

[[noreturn]] inline void Fail(const std::string& what) {
  std::fprintf(stderr, "%s\n", what.c_str());
  std::abort();
}

}  // namespace quorvel::fuzz
