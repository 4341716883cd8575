#include "core/byte_order.h"  // the host's own
#include "quorvel/headless_platform.h"

int main() { return kOfTheHost; }
