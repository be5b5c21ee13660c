#include "play/picking.h"

namespace play {

void pickCell(core::GameState& game, double x, double y) {
  // Bands along the two diagonals of the surface, 32 pixels apart.
  for (int i = 0; i <= 31; ++i) {
    if (525 + 32 * i - x / 2 <= y && y < 557 + 32 * i - x / 2) game.cellX = i;
    if (493 - 32 * i + x / 2 < y && y <= 525 - 32 * i + x / 2) game.cellY = 30 - i;
  }
}

AnchorRange anchorRange(const core::GameState& game, const core::ProgramValues& values) {
  const double low = core::mapMargin(values);
  return {low, values.gMapSize + low - game.cursorFootprint + 1};
}

void clampCell(core::GameState& game, const core::ProgramValues& values) {
  const AnchorRange range = anchorRange(game, values);
  if (game.cellX < range.low) game.cellX = range.low;
  if (game.cellY < range.low) game.cellY = range.low;
  if (game.cellX > range.high) game.cellX = range.high;
  if (game.cellY > range.high) game.cellY = range.high;
}

}  // namespace play
