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

/// The keys that are held down together with another key or a press.
struct Modifiers {
  bool shift = false;    // extends the selection
  bool control = false;  // goes by words
};

}  // namespace platform
