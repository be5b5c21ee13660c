// Brings cells onto the map surface.
//
// Flat cells are repainted when they are dirty, tall cells at every redraw; a redraw is always DrawTiles32
// first, then DrawTiles2 or DrawTiles3. map/geometry.h has the places of the cells.
#pragma once

#include "core/game_state.h"
#include "map/picture_set.h"
#include "platform/canvas.h"

namespace map {

/// The map surface as it is drawn on, and what it draws from.
struct Stage {
  core::GameState& game;
  const core::ProgramValues& values;
  PictureSet& pictures;
  platform::Canvas& canvas;  // picScroll's surface, 1984 x 1056
};

/// Draws every cell at its tall position: the first coat. The caller puts the surface at kRestingPlace,
/// which takes back any scrolling. No refresh.
void DrawTiles(Stage& stage);
/// Draws the dirty flat cells. No refresh.
void DrawTiles32(Stage& stage);
/// Paints the mission backdrop and all tall cells, and refreshes.
void DrawTiles2(Stage& stage);
/// The same, then zeroes the two reserved numbers of the saved game that belong to it.
void DrawTiles3(Stage& stage);

/// The backdrop of the mission without a refresh; its first group counts one blit.
void paintBackdrop(Stage& stage);

/// Repaints the tall cells with x >= firstX and y >= firstY, up to the last of the board; counts two
/// blits for each.
void repaintTallCells(Stage& stage, int firstX, int firstY);

/// Sets the dirty marks of the cells low .. high both ways.
void markCells(core::City& city, int low, int high);
void unmarkCells(core::City& city, int low, int high);

}  // namespace map
