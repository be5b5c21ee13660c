// The keys that mean something to the program, whatever keyboard they come from.
#pragma once

#include <cstdint>

namespace platform {

// The page of the browser edition counts them in this order.
enum class Key : std::uint8_t {
  backspace,
  enter,
  escape,
  left,
  right,
  home,
  end,
  deleteForward,
  selectAll,
  copy,
  cut,
  paste,
};

/// The keys that are held down beside another one, or beside a press.
struct Modifiers {
  bool shift = false;    // takes what lies between into the selection
  bool control = false;  // goes by words
};

}  // namespace platform
