// What the player does with the mouse, the keyboard and the window, as plain values for the desk.
#pragma once

#include <array>
#include <cstdint>

#include "platform/desk.h"
#include "platform/edge_pointer.h"
#include "platform/geometry.h"
#include "platform/presses.h"

union SDL_Event;

namespace platform {

class SdlDisplay;

enum class EventKind : std::uint8_t {
  pointer,  // `point`: the pointer moved there
  down,     // a mouse button went down at `point`
  up,       // it went up at `point`
  wheel,    // `steps` turns, away from the player counted positive
  text,     // `text`: what was typed, UTF-8
  key,      // `key`
  redraw,   // what was in the window is gone: present everything
  quit,     // the window was closed, or the system asks the program to end
};

struct Event {
  EventKind kind = EventKind::redraw;
  Point point{};       // in units of the layout, 0..799 and 0..599
  bool inside = true;  // the pointer is in the window
  int steps = 0;
  Key key = Key::enter;
  Modifiers held{};             // beside a key or a press
  std::array<char, 32> text{};  // ends with a zero byte
};

class SdlEvents {
 public:
  /// `display` must outlive the events. Its own keys (F11, Alt+Enter) are answered in here.
  explicit SdlEvents(SdlDisplay& display) : display_(display) {}

  /// Gives the next event. Waits for it up to `timeout` milliseconds, without limit when that is
  /// negative; false when none came. A loop sleeps in here until its next timer is due, and then
  /// takes what else has come with a timeout of 0.
  bool next(Event& into, std::int64_t timeout);
  /// To be called when another screen has come up: presses for the old one do not reach it.
  void screenOpened();
  /// Whether the pointer, where it is now, may slide the map.
  bool edgeScrolling();

 private:
  bool translate(const SDL_Event& event, Event& into);
  bool translateWindow(const SDL_Event& event, Event& into);

  void pointerAt(int x, int y, Event& into);

  SdlDisplay& display_;
  Presses presses_;
  EdgePointer edge_;
  Point last_{};  // where the pointer was last
};

/// Brings the pointer, the buttons and the keys to a desk; other events do nothing to it.
void deliver(const Event& event, Desk& desk);

}  // namespace platform
