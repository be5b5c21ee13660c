// Whether a pointer at the edge of the picture may slide the map.
//
// It may while the window has the focus and the pointer is inside. The edges of a picture that fills
// the screen stop the pointer; those of a window do not, and a pointer on its way out would slide the
// map. There it has to rest at the edge first.
#pragma once

#include <cstdint>

#include "platform/geometry.h"

namespace platform {

class EdgePointer {
 public:
  static constexpr int kEdge = 10;  // pixels of the picture that count as its edge, or a few less
  static constexpr std::int64_t kRest = 150;  // milliseconds

  void setFocus(bool focus) { focus_ = focus; }
  /// Whether the picture fills the screen.
  void setFull(bool full) { full_ = full; }
  /// The pointer moved to a pixel of the picture; `inside` says whether it is still in the window.
  void moved(Point point, bool inside, std::int64_t now);
  /// The pointer has left the window.
  void left() { inside_ = false; }

  bool scrolls(std::int64_t now) const {
    return focus_ && inside_ && (full_ || rested_ || now - movedAt_ >= kRest);
  }

 private:
  bool focus_ = true;
  bool full_ = true;
  bool inside_ = true;
  bool rested_ = false;  // it has rested at the edge, and has not left the edge since
  bool atEdge_ = false;
  std::int64_t movedAt_ = 0;
};

}  // namespace platform
