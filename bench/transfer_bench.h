#pragma once

namespace quorvel::bench {

/// A download of 225 blocks and an upload of all of them, through the control and its dialogs, with
/// a host that answers from inside the events. The clock is virtual: no pause between packets
/// counts.
void RegisterTransfers();

}  // namespace quorvel::bench
