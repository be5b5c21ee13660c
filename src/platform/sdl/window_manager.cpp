#include "platform/sdl/window_manager.h"

#include <SDL.h>
#include <SDL_syswm.h>
#include <X11/Xatom.h>

namespace platform {

namespace {

/// Every event of X comes as one of these; all others are kept out of the queue.
int keepScreenChanges(void*, SDL_Event* event) {
  Size size;
  return event->type != SDL_SYSWMEVENT || newScreenSize(*event, size) ? 1 : 0;
}

}  // namespace

XServer lookAtServer() {
  Display* const display = XOpenDisplay(nullptr);
  if (display == nullptr) return {};
  const int screen = DefaultScreen(display);
  // Every manager of today leaves a mark on the root window.
  const Atom mark = XInternAtom(display, "_NET_SUPPORTING_WM_CHECK", False);
  Atom type = None;
  int format = 0;
  unsigned long count = 0, rest = 0;
  unsigned char* value = nullptr;
  const int result = XGetWindowProperty(display, DefaultRootWindow(display), mark, 0, 1, False,
                                        XA_WINDOW, &type, &format, &count, &rest, &value);
  if (value != nullptr) XFree(value);
  const XServer server{{DisplayWidth(display, screen), DisplayHeight(display, screen)},
                       result == Success && count == 1};
  XCloseDisplay(display);
  return server;
}

void watchScreen(SDL_Window* window) {
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  if (!SDL_GetWindowWMInfo(window, &info) || info.subsystem != SDL_SYSWM_X11) return;
  Display* const display = info.info.x11.display;
  XWindowAttributes root{};
  XGetWindowAttributes(display, DefaultRootWindow(display), &root);
  XSelectInput(display, DefaultRootWindow(display), root.your_event_mask | StructureNotifyMask);
  SDL_SetEventFilter(keepScreenChanges, nullptr);
  SDL_EventState(SDL_SYSWMEVENT, SDL_ENABLE);
}

bool newScreenSize(const SDL_Event& event, Size& size) {
  if (event.type != SDL_SYSWMEVENT || event.syswm.msg->subsystem != SDL_SYSWM_X11) return false;
  const XEvent& change = event.syswm.msg->msg.x11.event;
  if (change.type != ConfigureNotify ||
      change.xconfigure.window != DefaultRootWindow(change.xconfigure.display)) {
    return false;
  }
  size = {change.xconfigure.width, change.xconfigure.height};
  return true;
}

}  // namespace platform
