// A drawing surface that keeps what is drawn on it and shows it when it is told to.
//
// Drawing notes the rectangles it touched; `refresh` hands them on to the painter. What has been
// drawn and not refreshed stays off the screen until something else uncovers it.
#pragma once

#include <utility>

#include "platform/damage.h"
#include "platform/surface.h"

namespace platform {

class Canvas {
 public:
  Canvas() = default;
  Canvas(int width, int height, int scale = 1) : surface_(width, height, scale) {}

  Surface& surface() { return surface_; }
  const Surface& surface() const { return surface_; }

  void bitBlt(int x, int y, int width, int height, const Surface& source, std::uint32_t operation) {
    if (blank_) return;
    BitBlt(surface_, x, y, width, height, source, 0, 0, operation);
    drawn_.add(intersection({x, y, width, height}, surface_.bounds()));
  }
  void stretchBlt(int x, int y, int width, int height, const Surface& source, int sourceWidth,
                  int sourceHeight, std::uint32_t operation) {
    if (blank_) return;
    StretchBlt(surface_, x, y, width, height, source, 0, 0, sourceWidth, sourceHeight, operation);
    drawn_.add(intersection({x, y, width, height}, surface_.bounds()));
  }
  /// SRCAND of `tile`, then SRCPAINT of `mask`.
  void pair(int x, int y, int width, int height, const Surface& tile, const Surface& mask) {
    if (blank_) return;
    blitPair(surface_, x, y, width, height, tile, mask);
    drawn_.add(intersection({x, y, width, height}, surface_.bounds()));
  }
  /// Clears the surface to black and shows it at once. A blank surface takes drawing again.
  void clear() {
    blank_ = false;
    surface_.clear();
    drawn_.add(surface_.bounds());
    refresh();
  }
  /// The same, and drops whatever is drawn until `clear`.
  void blank() {
    clear();
    blank_ = true;
  }
  bool isBlank() const { return blank_; }
  /// Shows what has been drawn since the last refresh.
  void refresh() {
    for (const Rect& rect : drawn_.rects()) shown_.add(rect);
    drawn_.clear();
  }

  /// What the painter has yet to bring to the screen. The painter clears it.
  DamageList& shown() { return shown_; }

 private:
  Surface surface_;
  DamageList drawn_;
  DamageList shown_;
  bool blank_ = false;
};

}  // namespace platform
