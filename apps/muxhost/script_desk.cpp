#include "apps/muxhost/script_desk.h"

namespace quorvel::muxhost {

Desk::Desk(std::ostream& output)
    : out(output), session(platform, [this](int milliseconds, std::function<void()> task) {
        platform.PostIn(milliseconds, std::move(task));
      }) {}

}  // namespace quorvel::muxhost
