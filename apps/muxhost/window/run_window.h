#pragma once

#include <memory>

#include "muxhost/texts/language.h"

namespace quorvel::muxhost {

// Defined beside MainWindow, in builds with a window only. Each makes the application and runs it
// until its window is closed; returns the exit status.

/// Opens the main window over a HostSession, all in a language; none: English.
int RunWindow(int argc, char** argv, std::shared_ptr<const Language> language);

/// Opens a window with every kind of control in every state.
int RunWidgetPage(int argc, char** argv);

}  // namespace quorvel::muxhost
