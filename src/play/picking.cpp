#include "play/picking.h"

namespace play {

void pickCell(core::Hand& hand, double x, double y) {
  // Bands along the two diagonals of the surface, 32 pixels apart.
  for (int i = 0; i <= 31; ++i) {
    if (525 + 32 * i - x / 2 <= y && y < 557 + 32 * i - x / 2) hand.cellX = i;
    if (493 - 32 * i + x / 2 < y && y <= 525 - 32 * i + x / 2) hand.cellY = 30 - i;
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
