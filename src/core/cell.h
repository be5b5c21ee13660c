// Small operations on one cell that several rules share.
#pragma once

#include "core/game_state.h"

namespace core {

/// Whether the cell has a picture of its own: 0 .. 35 both ways.
constexpr bool hasImage(int x, int y) {
  return x >= 0 && x <= 35 && y >= 0 && y <= 35;
}

/// Makes a cell bare land: code, picture and tall flag. Its building id stays until something else
/// is built on it.
inline void clearCell(GameState& game, int x, int y) {
  game.tileCode(x, y) = 0;
  game.cellTall(x, y) = 0;
  if (hasImage(x, y)) game.tileImage(x, y) = 0;
}

}  // namespace core
