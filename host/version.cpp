#include "quorvel/version.h"

// A number in a text.
#define QUORVEL_DIGITS_OF(number) #number
#define QUORVEL_DIGITS(number) QUORVEL_DIGITS_OF(number)

namespace quorvel {

std::string_view Version() {
  return QUORVEL_DIGITS(QUORVEL_VERSION_MAJOR) "." QUORVEL_DIGITS(
      QUORVEL_VERSION_MINOR) "." QUORVEL_DIGITS(QUORVEL_VERSION_PATCH);
}

}  // namespace quorvel
