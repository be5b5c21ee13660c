// The ends of a session that the window system does not announce as a wish to quit.
#pragma once

#include <functional>

namespace platform {

/// Makes SIGHUP a wish to quit, as SIGTERM is: it comes at the end of a session, or of the terminal that
/// the program was started from. A program started under nohup goes on.
void hangUpAsTermination();

/// Calls `act` when the X server goes away under an open window, as at the end of a session, and then ends
/// the process with status 0: Xlib does not return from there, and no window can be used any more. `act`
/// must not touch the display. An empty function leaves the end to Xlib again.
void whenDisplayIsLost(std::function<void()> act);

}  // namespace platform
