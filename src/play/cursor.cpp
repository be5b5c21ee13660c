#include "play/cursor.h"

#include "core/missions.h"
#include "core/vocabulary.h"
#include "map/geometry.h"
#include "play/hover.h"
#include "play/picking.h"
#include "play/scrolling.h"

namespace play {

namespace {

void readPointer(Scene& scene) {
  const platform::Point pointer = scene.desk.pointer();
  scene.game.cursorX = pointer.x;
  scene.game.cursorY = pointer.y;
}

// The lattice repeats every 64 x 32 pixels, with one diamond in the middle of a block and four more
// at its corners.
void snapPointer(core::GameState& game) {
  int px = game.cursorX - 15;
  if (px < 0) px = 0;
  const int py = game.cursorY - 41;
  const int originX = px / 64 * 64;
  const int originY = py / 32 * 32;
  game.cellOriginX = originX;
  game.cellOriginY = originY;
  const double fx = px - originX;
  const double fy = py - originY;
  double sx = originX + 32;
  double sy = originY;
  if (fx <= 32) {
    if (fy < (32 - fx) / 2) {
      sx = originX;
      sy = originY - 16;
    } else if (fy > 16 + fx / 2) {
      sx = originX;
      sy = originY + 16;
    }
  } else {
    if (fy < (fx - 32) / 2) {
      sx = originX + 64;
      sy = originY - 16;
    } else if (fy > 32 - (fx - 32) / 2) {
      sx = originX + 64;
      sy = originY + 16;
    }
  }
  game.cursorPxX = sx + 14;
  game.cursorPxY = sy + 44;
}

/// End points of a line, relative to the top corner of the diamond.
struct LineEnds {
  int x1, y1, x2, y2;
};

// Lines 0 to 3 are the outline, the others the inner grid of the footprint. A cell is drawn 60 by
// 30 pixels, inside its 64 by 32.
constexpr LineEnds kSide1[] = {{0, 0, 30, 15}, {0, 0, -30, 15}, {0, 30, 30, 15}, {0, 30, -30, 15}};
constexpr LineEnds kSide2[] = {{0, 0, 60, 30},   {0, 0, -60, 30},   {0, 60, 60, 30},
                               {0, 60, -60, 30}, {30, 15, -30, 45}, {30, 45, -30, 15}};
constexpr LineEnds kSide3[] = {{0, 0, 90, 45},    {0, 0, -90, 45},   {0, 90, 90, 45},
                               {0, 90, -90, 45},  {60, 30, -30, 75}, {60, 60, -30, 15},
                               {30, 15, -60, 60}, {30, 75, -60, 30}};

std::span<const LineEnds> linesOf(int footprint) {
  if (footprint == 2) return kSide2;
  if (footprint == 3) return kSide3;
  return kSide1;
}

void placeLines(Scene& scene) {
  core::GameState& game = scene.game;
  const int a = static_cast<int>(game.cursorPxX) - map::kRestingPlace.left + 2 + game.scrollX;
  const int b = static_cast<int>(game.cursorPxY) - map::kRestingPlace.top + game.scrollY;
  const std::span<const LineEnds> lines = linesOf(game.cursorFootprint);
  for (int n = 0; n < 8; ++n) {
    if (n >= static_cast<int>(lines.size())) {
      scene.form.hide(ui::Line1 + n);
      continue;
    }
    const LineEnds& ends = lines[n];
    platform::Control& line = scene.form[ui::Line1 + n];
    line.from = {a + ends.x1, b + ends.y1};
    line.to = {a + ends.x2, b + ends.y2};
    line.visible = true;
  }
}

void trackCursor(Scene& scene) {
  core::GameState& game = scene.game;
  if (game.cursorX > 700 || game.cursorY < 30) {
    hideCursor(scene);
    return;
  }
  if (game.cursorRed == 1) {
    tintCursor(scene);
    game.cursorRed = 0;
  }
  if (game.cursorGreen == 1) {
    tintCursor(scene);
    game.cursorGreen = 0;
  }
  if (game.cursorX == game.lastCursorX && game.cursorY == game.lastCursorY) return;
  game.lastCursorX = game.cursorX;
  game.lastCursorY = game.cursorY;
  if (game.cursorHidden == 1) hideCursor(scene);
  if (game.cursorX > 622 || game.cursorY < 50) {
    hideCursor(scene);
    return;
  }
  snapPointer(game);
  if (game.cursorPxX == game.lastCellPxX && game.cursorPxY == game.lastCellPxY) return;
  // cursorHidden is not checked here: beyond the limits a pointer that moves within one snapped
  // position puts the diamond out, and one that reaches another shows it again.
  placeLines(scene);
  game.lastCellPxX = game.cursorPxX;
  game.lastCellPxY = game.cursorPxY;
}

bool lineColorIs(Scene& scene, platform::Color color) {
  return scene.form[ui::Line1 + 1].fore == color;
}

}  // namespace

void tintCursor(Scene& scene) {
  for (int n = 0; n < 8; ++n) {
    platform::Color& color = scene.form[ui::Line1 + n].fore;
    if (scene.game.cursorRed == 1) color = platform::kRed;
    if (scene.game.cursorGreen == 1) color = platform::kGreen;
  }
}

void pointerTick(Scene& scene) {
  readPointer(scene);
  highlightHover(scene);
  scrollAtEdges(scene);
  if (scene.game.currentTool == core::kInfoTool || scene.values.gMission == core::kDemonstration) {
    return;
  }
  trackCursor(scene);
}

void moveOverMap(Scene& scene, double x, double y) {
  core::GameState& game = scene.game;
  if (game.currentTool == core::kInfoTool) return;
  readPointer(scene);
  pickCell(game, x, y);
  game.cursorHidden = 0;
  const AnchorRange range = anchorRange(game, scene.values);
  if (game.cellX < range.low || game.cellY < range.low || game.cellX > range.high ||
      game.cellY > range.high) {
    game.cursorHidden = 1;
    return;
  }
  // The demolish cursor keeps the colour it has.
  if (game.currentTool == core::kDemolishTool) return;
  const int left = game.cellX.whole();
  const int top = game.cellY.whole();
  bool free = true;
  for (int dy = 0; dy < game.cursorFootprint; ++dy) {
    for (int dx = 0; dx < game.cursorFootprint; ++dx) {
      if (game.tileCode(left + dx, top + dy) != 0) free = false;
    }
  }
  if (!free && !lineColorIs(scene, platform::kRed)) game.cursorRed = 1;
  if (free && !lineColorIs(scene, platform::kGreen)) game.cursorGreen = 1;
}

}  // namespace play
