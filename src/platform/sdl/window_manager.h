// Whether somebody on the desktop grants wishes about windows, and what is to be done where nobody
// does.
#pragma once

#include "platform/geometry.h"

struct SDL_Window;
union SDL_Event;

namespace platform {

/// Whether a window manager runs on the X display. Without one (a bare X server, a kiosk) a request
/// for full screen is never answered, and waiting for the answer costs a tenth of a second.
bool windowManagerRuns();

/// Lets an event of the type SDL_SYSWMEVENT come whenever the screen changes its size, which a manager
/// would have followed.
void watchScreen(SDL_Window* window);
/// The size that such an event brings. False for any other event.
bool newScreenSize(const SDL_Event& event, Size& size);

}  // namespace platform
