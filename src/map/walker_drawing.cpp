#include <array>
#include <span>

#include "core/new_game.h"
#include "map/geometry.h"
#include "map/walker_designs.h"
#include "map/walkers.h"

namespace map {

namespace {

using core::CellOffset;
using core::GameState;
using core::kWalkers;

constexpr int kBlockWidth = 12;
constexpr int kBlockHeight = 17;

/// Tall cells that can cover a walker, and where the repaint begins if one of them is tall.
/// All are counted from the walker's lane: along it from the cell it is in, across it from the
/// start cell.
struct Cover {
  std::array<CellOffset, 4> cells;
  std::size_t count;
  CellOffset first;

  std::span<const CellOffset> tested() const { return {cells.data(), count}; }
};

/// For each direction: while it walks.
constexpr std::array<Cover, 4> kWalking{{
    {{{{1, 0}, {1, 1}, {0, 1}}}, 3, {0, 0}},
    {{{{1, 2}, {1, 1}, {0, 1}}}, 3, {0, 0}},
    {{{{1, 1}, {0, 1}, {1, 0}, {2, 1}}}, 4, {-1, 0}},
    {{{{1, 1}, {0, 1}}}, 2, {-1, 0}},
}};
/// For each direction: when the patch has painted it out.
constexpr Cover kPatchAlongY{{{{1, 0}, {1, 1}, {0, 1}, {1, -1}}}, 4, {0, -1}};
constexpr Cover kPatchAlongX{{{{1, 0}, {1, 1}, {0, 1}}}, 3, {-1, 0}};
constexpr std::array<Cover, 4> kPatched{{kPatchAlongY, kPatchAlongY, kPatchAlongX, kPatchAlongX}};

const WalkerDesign& designOf(const GameState& game, int slot) {
  return walkerDesign(game.walkerDir[slot]);
}

/// Draws an opaque block, at the place of a walker. Blocks are no drawing load: they count no
/// blits.
void drawBlock(Stage& stage, int slot, int picture) {
  const GameState& game = stage.game;
  const WalkerDesign& design = designOf(game, slot);
  const platform::Point start = tallOrigin(game.walkerX[slot], game.walkerY[slot]);
  const int drawX = start.x + design.base.x;
  const int drawY = start.y + design.base.y;
  stage.canvas.pair(drawX + game.walkerPxX[slot], drawY + game.walkerPxY[slot], kBlockWidth,
                    kBlockHeight, stage.pictures.picTile[picture], stage.pictures.picMask[picture]);
}

void loadFrame(PictureSet& pictures, int frame) {
  const platform::Surface& source = pictures.picTile[frame];
  for (platform::Surface* slot :
       {&pictures.picTile[kWorkingSlot], &pictures.picMask[kWorkingSlot]}) {
    platform::BitBlt(*slot, 0, 0, kBlockWidth, kBlockHeight, source, 0, 0, platform::SRCCOPY);
  }
}

void repaintCover(Stage& stage, int slot, const Cover& cover) {
  const GameState& game = stage.game;
  const int x = game.walkerX[slot] + game.walkerCellDX[slot];
  const int y = game.walkerY[slot] + game.walkerCellDY[slot];
  for (const CellOffset& d : cover.tested()) {
    if (game.cellTall(x + d.x, y + d.y) != 1) continue;
    repaintTallCells(stage, x + cover.first.x, y + cover.first.y);
    return;
  }
}

}  // namespace

void DrawTiles4(Stage& stage) {
  const GameState& game = stage.game;
  for (int slot = 1; slot <= kWalkers; ++slot) {
    if (game.walkerActive[slot] != 1) continue;
    loadFrame(stage.pictures, designOf(game, slot).frames[game.walkerFrame[slot]]);
    drawBlock(stage, slot, kWorkingSlot);
  }
  for (int slot = 1; slot <= kWalkers; ++slot) {
    if (game.walkerActive[slot] != 1) continue;
    repaintCover(stage, slot, kWalking[game.walkerDir[slot]]);
  }
  for (int slot = 1; slot <= kWalkers; ++slot) {
    if (game.walkerActive[slot] != 1 || game.walkerDone[slot] != 1) continue;
    drawBlock(stage, slot, designOf(game, slot).patch);
    repaintCover(stage, slot, kPatched[game.walkerDir[slot]]);
  }
  stage.canvas.refresh();
}

void removeWalkers(Stage& stage) {
  GameState& game = stage.game;
  for (int slot = 1; slot <= kWalkers; ++slot) {
    if (game.walkerActive[slot] == 1) drawBlock(stage, slot, designOf(game, slot).patch);
  }
  core::clearWalkers(game);
  repaintTallCells(stage, 0, 0);
}

}  // namespace map
