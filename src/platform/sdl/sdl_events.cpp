#include "platform/sdl/sdl_events.h"

#include <SDL.h>

#include <algorithm>
#include <cstring>
#include <limits>

#include "platform/display.h"
#include "platform/sdl/sdl_display.h"

namespace platform {

namespace {

struct KeyName {
  SDL_Keycode code;
  Key key;
};
constexpr KeyName kKeys[] = {
    {SDLK_BACKSPACE, Key::backspace}, {SDLK_RETURN, Key::enter}, {SDLK_KP_ENTER, Key::enter},
    {SDLK_ESCAPE, Key::escape},       {SDLK_LEFT, Key::left},    {SDLK_RIGHT, Key::right},
    {SDLK_HOME, Key::home},           {SDLK_END, Key::end},      {SDLK_DELETE, Key::deleteForward}};
constexpr KeyName kKeysWithControl[] = {
    {SDLK_a, Key::selectAll}, {SDLK_c, Key::copy}, {SDLK_x, Key::cut}, {SDLK_v, Key::paste}};

Modifiers heldOf(int held) {
  return {(held & KMOD_SHIFT) != 0, (held & KMOD_CTRL) != 0};
}

bool keyOf(const SDL_KeyboardEvent& event, Key& key) {
  const SDL_Keysym& sym = event.keysym;
  for (const KeyName& name : kKeys) {
    if (name.code != sym.sym) continue;
    key = name.key;
    // Holding Enter or Escape down answers one question, not all that follow.
    return event.repeat == 0 || (key != Key::enter && key != Key::escape);
  }
  // The Alt of some keyboards, which makes other letters, comes with a Ctrl of its own.
  if ((sym.mod & KMOD_CTRL) == 0 || (sym.mod & KMOD_ALT) != 0) return false;
  // Where the keyboard writes no Latin letters, their usual places count.
  const SDL_Keycode code =
      sym.sym < 0x80 ? sym.sym : static_cast<int>(sym.scancode) - SDL_SCANCODE_A + SDLK_a;
  for (const KeyName& name : kKeysWithControl) {
    if (name.code != code) continue;
    key = name.key;
    return true;
  }
  return false;
}

bool switchesFullScreen(const SDL_Keysym& sym) {
  return sym.sym == SDLK_F11 || (sym.sym == SDLK_RETURN && (sym.mod & KMOD_ALT) != 0);
}

std::int64_t now() {
  return static_cast<std::int64_t>(SDL_GetTicks64());
}

// A fast mouse moves many times between two looks; where it ended up is all that counts.
bool moreMotionWaits() {
  SDL_Event next;
  return SDL_PeepEvents(&next, 1, SDL_PEEKEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) == 1 &&
         next.type == SDL_MOUSEMOTION;
}

}  // namespace

void SdlEvents::pointerAt(int x, int y, Event& into) {
  const Point inWindow{x, y};
  last_ = display_.pictured(inWindow);
  into.kind = EventKind::pointer;
  into.point = last_;
  into.inside = display_.inWindow(inWindow);
  edge_.moved(last_, into.inside, now());
}

bool SdlEvents::translate(const SDL_Event& event, Event& into) {
  into = {};
  const Point before = last_;
  switch (event.type) {
    case SDL_MOUSEMOTION:
      // With a button held the moves go on beyond the window.
      pointerAt(event.motion.x, event.motion.y, into);
      return !moreMotionWaits();
    case SDL_MOUSEBUTTONDOWN:
      pointerAt(event.button.x, event.button.y, into);
      into.held = heldOf(SDL_GetModState());
      if (presses_.down(event.button.button, now())) into.kind = EventKind::down;
      return into.kind == EventKind::down || !(last_ == before);
    case SDL_MOUSEBUTTONUP:
      pointerAt(event.button.x, event.button.y, into);
      if (presses_.up(event.button.button)) into.kind = EventKind::up;
      return into.kind == EventKind::up || !(last_ == before);
    case SDL_MOUSEWHEEL:
      into.kind = EventKind::wheel;
      into.steps = event.wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -event.wheel.y : event.wheel.y;
      return into.steps != 0;
    case SDL_TEXTINPUT:
      into.kind = EventKind::text;
      std::copy_n(event.text.text, into.text.size() - 1, into.text.begin());
      return into.text[0] != '\0';
    case SDL_KEYDOWN:
      if (switchesFullScreen(event.key.keysym)) {
        if (event.key.repeat != 0) return false;
        display_.toggleFullScreen();
        into.kind = EventKind::redraw;
        return true;
      }
      into.kind = EventKind::key;
      into.held = heldOf(event.key.keysym.mod);
      return keyOf(event.key, into.key);
    case SDL_WINDOWEVENT:
      return translateWindow(event, into);
    case SDL_SYSWMEVENT:
      display_.followScreen(event);
      into.kind = EventKind::redraw;
      return true;
    case SDL_QUIT:
      into.kind = EventKind::quit;
      return true;
    default:
      return false;
  }
}

bool SdlEvents::translateWindow(const SDL_Event& event, Event& into) {
  switch (event.window.event) {
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_SIZE_CHANGED:
    case SDL_WINDOWEVENT_SHOWN:
    case SDL_WINDOWEVENT_RESTORED:
      display_.rearrange();
      into.kind = EventKind::redraw;
      return true;
    case SDL_WINDOWEVENT_LEAVE:
      edge_.left();
      into.kind = EventKind::pointer;
      into.point = last_;
      into.inside = false;
      return true;
    case SDL_WINDOWEVENT_MINIMIZED:
    case SDL_WINDOWEVENT_HIDDEN:
      return true;  // the loop looks whether anybody sees the game
    default:
      return false;
  }
}

bool SdlEvents::next(Event& into, std::int64_t timeout) {
  const std::int64_t start = now();
  for (;;) {
    int rest = -1;
    if (timeout >= 0) {
      const std::int64_t left = timeout - (now() - start);
      rest = static_cast<int>(std::clamp<std::int64_t>(left, 0, std::numeric_limits<int>::max()));
    }
    SDL_Event event;
    if ((rest < 0 ? SDL_WaitEvent(&event) : SDL_WaitEventTimeout(&event, rest)) == 0) {
      if (rest < 0) SDL_Delay(10);  // the window system failed; it is asked again
      return false;
    }
    if (translate(event, into)) return true;
  }
}

void SdlEvents::screenOpened() {
  presses_.screenOpened(now());
}

bool SdlEvents::edgeScrolling() {
  edge_.setFocus(display_.focused());
  edge_.setFull(display_.full());
  return edge_.scrolls(now());
}

void deliver(const Event& event, Desk& desk) {
  switch (event.kind) {
    case EventKind::pointer:
      desk.pointerMoved(event.point);
      if (!event.inside) desk.pointerLeft();
      break;
    case EventKind::down:
      desk.buttonDown(event.point, event.held);
      break;
    case EventKind::up:
      desk.buttonUp(event.point);
      break;
    case EventKind::wheel:
      desk.wheel(event.steps);
      break;
    case EventKind::text:
      desk.type(event.text.data());
      break;
    case EventKind::key:
      desk.key(event.key, event.held);
      break;
    case EventKind::redraw:
    case EventKind::quit:
      break;
  }
}

}  // namespace platform
