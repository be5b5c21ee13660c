// A drawing surface that keeps what is drawn on it and shows it on refresh.
//
// Drawing notes the rectangles it changed; `refresh` hands them on to the painter. What has been
// drawn and not refreshed stays off the screen until something else uncovers it. Most of what a
// redraw draws is there already, and costs no more than that.
#pragma once

#include <algorithm>
#include <span>

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
    // In parts, so that a small change in a large picture is no large change.
    for (int top = 0; top < height; top += kPart) {
      for (int left = 0; left < width; left += kPart) {
        const Rect part{x + left, y + top, std::min(kPart, width - left),
                        std::min(kPart, height - top)};
        note(part, BitBlt(surface_, part.left, part.top, part.width, part.height, source, left, top,
                          operation));
      }
    }
  }
  void stretchBlt(int x, int y, int width, int height, const Surface& source, int sourceWidth,
                  int sourceHeight, std::uint32_t operation) {
    if (blank_) return;
    note({x, y, width, height}, StretchBlt(surface_, x, y, width, height, source, 0, 0, sourceWidth,
                                           sourceHeight, operation));
  }
  /// SRCAND of `tile`, then SRCPAINT of `mask`.
  void pair(int x, int y, int width, int height, const Surface& tile, const Surface& mask,
            std::span<const PairRow> rows = {}) {
    if (blank_) return;
    note({x, y, width, height}, blitPair(surface_, x, y, width, height, tile, mask, rows));
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
  static constexpr int kPart = 64;  // units

  void note(const Rect& box, bool changed) {
    if (changed) drawn_.add(intersection(box, surface_.bounds()));
  }

  Surface surface_;
  DamageList drawn_;
  DamageList shown_;
  bool blank_ = false;
};

}  // namespace platform
