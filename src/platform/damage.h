// A short list of rectangles that have changed. When it is full the rectangles run together into
// fewer and larger ones, so that nothing is ever lost and nothing is allocated.
#pragma once

#include <array>
#include <span>

#include "platform/geometry.h"

namespace platform {

class DamageList {
 public:
  static constexpr int kCapacity = 48;

  /// Adds a rectangle; an empty one, or one inside another of the list, adds nothing.
  void add(const Rect& rect);
  void clear() { count_ = 0; }
  bool empty() const { return count_ == 0; }
  std::span<const Rect> rects() const { return {rects_.data(), static_cast<std::size_t>(count_)}; }

 private:
  std::array<Rect, kCapacity> rects_{};
  int count_ = 0;
};

}  // namespace platform
