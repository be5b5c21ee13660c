// Points and rectangles in whole pixels.
#pragma once

#include <algorithm>

namespace platform {

struct Point {
  int x = 0;
  int y = 0;
  friend constexpr bool operator==(const Point&, const Point&) = default;
};

struct Size {
  int width = 0;
  int height = 0;
  friend constexpr bool operator==(const Size&, const Size&) = default;
};

/// A rectangle that holds the pixels left .. left + width - 1 and top .. top + height - 1.
struct Rect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  constexpr int right() const { return left + width; }
  constexpr int bottom() const { return top + height; }
  constexpr bool empty() const { return width <= 0 || height <= 0; }
  constexpr bool contains(Point p) const {
    return p.x >= left && p.x < right() && p.y >= top && p.y < bottom();
  }
  friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

/// The pixels that both rectangles hold; an empty rectangle where there are none.
constexpr Rect intersection(const Rect& a, const Rect& b) {
  const int left = std::max(a.left, b.left);
  const int top = std::max(a.top, b.top);
  const int width = std::min(a.right(), b.right()) - left;
  const int height = std::min(a.bottom(), b.bottom()) - top;
  if (width <= 0 || height <= 0) return {left, top, 0, 0};
  return {left, top, width, height};
}

/// The smallest rectangle that holds both; an empty one counts for nothing.
constexpr Rect boundingBox(const Rect& a, const Rect& b) {
  if (a.empty()) return b;
  if (b.empty()) return a;
  const int left = std::min(a.left, b.left);
  const int top = std::min(a.top, b.top);
  return {left, top, std::max(a.right(), b.right()) - left, std::max(a.bottom(), b.bottom()) - top};
}

constexpr Rect moved(const Rect& r, int dx, int dy) {
  return {r.left + dx, r.top + dy, r.width, r.height};
}

}  // namespace platform
