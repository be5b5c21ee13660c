// Brings cells onto the map surface.
//
// A tall cell's box has its origin at (32 (x - y) + 960, 16 (x + y)) on the surface, a flat cell's 32
// pixels lower. Flat cells are repainted when they are dirty, tall cells at every redraw; a redraw is
// always DrawTiles32 first, then DrawTiles2 or DrawTiles3.
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

/// The four numbers that the routines take: the size of a cell's box, the part of half its height that
/// is no step, and the cells per side. Every call passes kTallCells or, for DrawTiles32, kFlatCells.
struct CellGeometry {
  int lngTileWidth;
  int lngTileHeight;
  int offsety;
  int lngBoardSize;
};
inline constexpr CellGeometry kTallCells{64, 64, 16, 31};
inline constexpr CellGeometry kFlatCells{64, 32, 8, 31};

/// Size of the surface that DrawTiles sets, and the place that centres it on an 800 x 600 screen.
platform::Rect surfacePlace(const CellGeometry& geometry);

/// Draws every cell at its tall position: the first coat. The caller puts the surface at
/// surfacePlace(), which takes back any scrolling. No refresh.
void DrawTiles(Stage& stage, const CellGeometry& geometry);
/// Draws the dirty flat cells. No refresh.
void DrawTiles32(Stage& stage, const CellGeometry& geometry);
/// Paints the mission backdrop and all tall cells, and refreshes.
void DrawTiles2(Stage& stage, const CellGeometry& geometry);
/// The same, then zeroes the two reserved numbers of the saved game that belong to it.
void DrawTiles3(Stage& stage, const CellGeometry& geometry);

/// The backdrop of the mission without a refresh; its first group counts one blit.
void paintBackdrop(Stage& stage);

/// Repaints the tall cells with x >= firstX and y >= firstY, up to the last of the board; counts two
/// blits for each.
void repaintTallCells(Stage& stage, const CellGeometry& geometry, int firstX, int firstY);

/// Sets the dirty marks of the cells low .. high both ways.
void markCells(core::City& city, int low, int high);
void unmarkCells(core::City& city, int low, int high);

}  // namespace map
