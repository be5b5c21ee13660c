#include "platform/sdl/sdl_events.h"

#include <SDL.h>

#include <algorithm>
#include <cstring>
#include <limits>

#include "platform/display.h"
#include "platform/sdl/sdl_display.h"

namespace platform {

namespace {

// A pointer that has left the window counts as a little way off the rim, so that it scrolls nothing.
Point rested(Point point) {
  constexpr int kRest = 16;
  return {std::clamp(point.x, kRest, kScreenWidth - 1 - kRest),
          std::clamp(point.y, kRest, kScreenHeight - 1 - kRest)};
}

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

// A fast mouse moves many times between two looks; where it ended up is all that counts.
bool moreMotionWaits() {
  SDL_Event next;
  return SDL_PeepEvents(&next, 1, SDL_PEEKEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) == 1 &&
         next.type == SDL_MOUSEMOTION;
}

}  // namespace

bool SdlEvents::translate(const SDL_Event& event, Event& into) {
  into = {};
  switch (event.type) {
    case SDL_MOUSEMOTION:
      // With a button held the moves go on beyond the window.
      last_ = display_.pictured({event.motion.x, event.motion.y});
      if (!display_.inWindow({event.motion.x, event.motion.y})) last_ = rested(last_);
      if (moreMotionWaits()) return false;
      into.kind = EventKind::pointer;
      into.point = last_;
      return true;
    case SDL_MOUSEBUTTONDOWN:
      if (held_ != 0) return false;
      held_ = event.button.button;
      into.kind = EventKind::down;
      into.held = heldOf(SDL_GetModState());
      into.point = last_ = display_.pictured({event.button.x, event.button.y});
      return true;
    case SDL_MOUSEBUTTONUP:
      if (held_ != event.button.button) return false;
      held_ = 0;
      into.kind = EventKind::up;
      into.point = last_ = display_.pictured({event.button.x, event.button.y});
      return true;
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
    case SDL_WINDOWEVENT_RESTORED:
      display_.rearrange();
      into.kind = EventKind::redraw;
      return true;
    case SDL_WINDOWEVENT_LEAVE:
      into.kind = EventKind::pointer;
      into.point = last_ = rested(last_);
      return true;
    default:
      return false;
  }
}

bool SdlEvents::next(Event& into, std::int64_t timeout) {
  const Uint64 start = SDL_GetTicks64();
  for (;;) {
    int rest = -1;
    if (timeout >= 0) {
      const auto passed = static_cast<std::int64_t>(SDL_GetTicks64() - start);
      rest = static_cast<int>(
          std::clamp<std::int64_t>(timeout - passed, 0, std::numeric_limits<int>::max()));
    }
    SDL_Event event;
    if ((rest < 0 ? SDL_WaitEvent(&event) : SDL_WaitEventTimeout(&event, rest)) == 0) {
      if (rest < 0) SDL_Delay(10);  // the window system failed; it is asked again
      return false;
    }
    if (translate(event, into)) return true;
  }
}

}  // namespace platform
