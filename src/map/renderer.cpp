#include "map/renderer.h"

#include "map/geometry.h"

namespace map {

namespace {

using core::GameState;
using core::kLastCell;

/// Draws the picture of a cell with its background transparent. A picture smaller than the box
/// gives its own pixels only; tall pictures are as large as their box, so nothing is ever scaled.
void drawCell(Stage& stage, int x, int y, platform::Point place, int height) {
  const int image = stage.game.tileImage(x, y);
  stage.canvas.pair(place.x, place.y, kCellWidth, height, stage.pictures.picTile[image],
                    stage.pictures.picMask[image], stage.pictures.rows[image]);
  stage.game.blitCount += 2;
}

/// Draws a cell, tall or flat, in a tall cell's box.
void drawTall(Stage& stage, int x, int y) {
  drawCell(stage, x, y, tallOrigin(x, y), kTallHeight);
}

}  // namespace

// Deliberate: flat pictures land 32 pixels above their place here. This coat matters for tall cells
// and the void only; DrawTiles32 paints over the rest.
void DrawTiles(Stage& stage) {
  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      drawTall(stage, x, y);
    }
  }
}

void DrawTiles32(Stage& stage) {
  const GameState& game = stage.game;
  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      if (game.cellDirty(x, y) == 1 && game.cellTall(x, y) == 0) {
        drawCell(stage, x, y, flatOrigin(x, y), kFlatHeight);
      }
    }
  }
}

void DrawTiles2(Stage& stage) {
  paintBackdrop(stage);
  repaintTallCells(stage, 0, 0);
  stage.canvas.refresh();
}

void DrawTiles3(Stage& stage) {
  DrawTiles2(stage);
  stage.game.reserved[2] = 0;
  stage.game.reserved[3] = 0;
}

void repaintTallCells(Stage& stage, int firstX, int firstY) {
  for (int y = firstY; y <= kLastCell; ++y) {
    for (int x = firstX; x <= kLastCell; ++x) {
      if (stage.game.cellTall(x, y) == 1) {
        drawTall(stage, x, y);
      }
    }
  }
}

void markCells(core::City& city, int low, int high) {
  city.cellDirty.fillSquare(low, high, 1);
}

void unmarkCells(core::City& city, int low, int high) {
  city.cellDirty.fillSquare(low, high, 0);
}

}  // namespace map
