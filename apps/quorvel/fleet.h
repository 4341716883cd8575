#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace quorvel::tool {

/// What there is to tell of one file of many.
struct Told {
  std::string out;
  std::string err;
  int status = 0;
};

/// Looks at one of the files, by its number, and tells of it. It may throw: that is trouble.
using Look = std::function<void(std::size_t file, Told& told)>;

/// Has `count` files looked at on `threads` threads, each with a Look of its own, and prints what
/// there is to tell in the order of the files, as it comes. The status is the largest.
[[nodiscard]] int LookAtAll(std::size_t count, unsigned threads,
                            const std::function<Look()>& new_look);

}  // namespace quorvel::tool
