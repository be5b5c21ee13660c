#include "play/picking.h"

#include "map/geometry.h"

namespace play {

namespace {

// Bands along the two diagonals of the surface, each as high as a diamond. Deliberate: they are three
// pixels above the diamonds that are seen.
constexpr int kBand = map::kFlatHeight;
constexpr platform::Point kTop{map::flatOrigin(0, 0).x + map::kHalfCellWidth,
                               map::flatOrigin(0, 0).y - 3};
constexpr int kFirstAlongX = kTop.y + kTop.x / 2;
constexpr int kFirstAlongY = kTop.y - kTop.x / 2;

}  // namespace

void pickCell(core::Hand& hand, double x, double y) {
  for (int i = -1; i <= core::kBoardSize; ++i) {
    const int alongX = kFirstAlongX + kBand * i;
    const int alongY = kFirstAlongY + kBand * i;
    if (i >= 0 && alongX - x / 2 <= y && y < alongX + kBand - x / 2) hand.cellX = i;
    if (i < core::kBoardSize && alongY + x / 2 < y && y <= alongY + kBand + x / 2) hand.cellY = i;
  }
}

AnchorRange anchorRange(const core::Hand& hand, const core::ProgramValues& values) {
  const double low = core::mapMargin(values);
  return {low, values.gMapSize + low - hand.cursorFootprint + 1};
}

void clampCell(core::Hand& hand, const core::ProgramValues& values) {
  const AnchorRange range = anchorRange(hand, values);
  if (hand.cellX < range.low) hand.cellX = range.low;
  if (hand.cellY < range.low) hand.cellY = range.low;
  if (hand.cellX > range.high) hand.cellX = range.high;
  if (hand.cellY > range.high) hand.cellY = range.high;
}

}  // namespace play
