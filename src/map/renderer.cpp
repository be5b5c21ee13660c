#include "map/renderer.h"

#include "platform/display.h"

namespace map {

namespace {

using core::GameState;
using core::kLastCell;
using platform::Point;

/// twice / 2 as a whole number, a half to the nearest even one.
constexpr int roundedHalf(int twice) {
  const int low = twice >> 1;
  return low + ((twice & 1) & (low & 1));
}

Point tallPlace(const CellGeometry& g, int x, int y) {
  return {roundedHalf(g.lngTileWidth * (x - y + g.lngBoardSize - 1)),
          roundedHalf((g.lngTileHeight - 2 * g.offsety) * (x + y))};
}

Point flatPlace(const CellGeometry& g, int x, int y) {
  return {roundedHalf(g.lngTileWidth * (x - y + g.lngBoardSize - 1)),
          (g.lngTileHeight - 2 * g.offsety) * (x + y) + 32};
}

/// Draws the picture of a cell with its background transparent. A picture smaller than the box
/// gives its own pixels only; tall pictures are 64 x 64 like their box, so nothing is ever scaled.
void drawCell(Stage& stage, const CellGeometry& g, int x, int y, Point place) {
  const int image = stage.game.tileImage(x, y);
  stage.canvas.pair(place.x, place.y, g.lngTileWidth, g.lngTileHeight,
                    stage.pictures.picTile[image], stage.pictures.picMask[image],
                    stage.pictures.rows[image]);
  stage.game.blitCount += 2;
}

}  // namespace

platform::Rect surfacePlace(const CellGeometry& g) {
  const int width = g.lngTileWidth * g.lngBoardSize;
  const int height = g.lngTileHeight * g.lngBoardSize / 2 + g.lngTileHeight;
  return {platform::kScreenWidth / 2 - width / 2, platform::kScreenHeight / 2 - height / 2, width,
          height};
}

// Deliberate: flat pictures land 32 pixels above their place here. This coat matters for tall cells
// and the void only; DrawTiles32 paints over the rest.
void DrawTiles(Stage& stage, const CellGeometry& geometry) {
  for (int y = 0; y < geometry.lngBoardSize; ++y) {
    for (int x = 0; x < geometry.lngBoardSize; ++x) {
      drawCell(stage, geometry, x, y, tallPlace(geometry, x, y));
    }
  }
}

void DrawTiles32(Stage& stage, const CellGeometry& geometry) {
  const GameState& game = stage.game;
  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      if (game.cellDirty(x, y) == 1 && game.cellTall(x, y) == 0) {
        drawCell(stage, geometry, x, y, flatPlace(geometry, x, y));
      }
    }
  }
}

void DrawTiles2(Stage& stage, const CellGeometry& geometry) {
  paintBackdrop(stage);
  repaintTallCells(stage, geometry, 0, 0);
  stage.canvas.refresh();
}

void DrawTiles3(Stage& stage, const CellGeometry& geometry) {
  DrawTiles2(stage, geometry);
  stage.game.reserved[2] = 0;
  stage.game.reserved[3] = 0;
}

void repaintTallCells(Stage& stage, const CellGeometry& geometry, int firstX, int firstY) {
  for (int y = firstY; y <= kLastCell; ++y) {
    for (int x = firstX; x <= kLastCell; ++x) {
      if (stage.game.cellTall(x, y) == 1) {
        drawCell(stage, geometry, x, y, tallPlace(geometry, x, y));
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
