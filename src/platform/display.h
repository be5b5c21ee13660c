// The display: its size, the switch to the program's 800 x 600 and back, and what is shown on it.
#pragma once

#include <span>

#include "platform/surface.h"

namespace platform {

inline constexpr int kScreenWidth = 800;
inline constexpr int kScreenHeight = 600;

class Display {
 public:
  virtual ~Display() = default;
  /// Size of the display as it is now, in pixels.
  virtual Size size() = 0;
  /// Requests a drawing surface of this size that fills the display. 0 when it was given, also when
  /// it had been given before; any other number when it was refused.
  virtual int change(Size size) = 0;
  /// Shows the given rectangles of the framebuffer (800 x 600 units).
  virtual void present(const Surface& framebuffer, std::span<const Rect> changed) = 0;
  /// Shows a message with an OK button before any screen of the program is open, and on standard
  /// error. Returns when it was read.
  virtual void message(const char* title, const char* text) = 0;
};

}  // namespace platform
