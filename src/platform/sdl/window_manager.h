// The X server's screen, whether somebody there grants wishes about windows, and what is to be done
// where nobody does.
#pragma once

#include "platform/geometry.h"

struct SDL_Window;
union SDL_Event;

namespace platform {

/// What an X server says before the video system runs, which takes ten times as long to start.
struct XServer {
  Size screen{};  // all monitors together; 0 x 0 where there is no server
  /// A window manager runs. Without one (a bare X server, a kiosk) a request for full screen is never
  /// answered, and waiting for the answer costs a tenth of a second.
  bool managed = false;
};
XServer lookAtServer();

/// Lets an event of the type SDL_SYSWMEVENT come whenever the screen changes its size, which a manager
/// would have followed.
void watchScreen(SDL_Window* window);
/// The size that such an event brings. False for any other event.
bool newScreenSize(const SDL_Event& event, Size& size);

}  // namespace platform
