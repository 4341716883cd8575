#pragma once

namespace quorvel::muxhost {

/// Opens the main window over a HostSession and runs until it is closed; returns the exit status.
/// Defined beside MainWindow, in builds with a window only.
int RunWindow(int argc, char** argv);

}  // namespace quorvel::muxhost
