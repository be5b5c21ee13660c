#include "platform/damage.h"

#include <limits>

namespace platform {

namespace {

long long area(const Rect& r) {
  return static_cast<long long>(r.width) * r.height;
}

/// How many more pixels one rectangle around both would hold than the two together.
long long growth(const Rect& a, const Rect& b) {
  return area(boundingBox(a, b)) - area(a) - area(b);
}

}  // namespace

void DamageList::add(const Rect& rect) {
  if (rect.empty()) return;
  Rect joined = rect;
  // A rectangle that grew may now touch others of the list, so the search starts again.
  for (int i = 0; i < count_;) {
    const Rect& other = rects_[i];
    if (intersection(other, joined) == joined) return;
    if (growth(joined, other) > 0) {
      ++i;
      continue;
    }
    joined = boundingBox(joined, other);
    rects_[i] = rects_[--count_];
    i = 0;
  }
  if (count_ < kCapacity) {
    rects_[count_++] = joined;
    return;
  }
  int best = 0;
  long long least = std::numeric_limits<long long>::max();
  for (int i = 0; i < count_; ++i) {
    const long long cost = growth(joined, rects_[i]);
    if (cost < least) {
      least = cost;
      best = i;
    }
  }
  joined = boundingBox(joined, rects_[best]);
  rects_[best] = rects_[--count_];
  add(joined);
}

}  // namespace platform
