#include "core/new_game.h"

namespace core {

namespace {

constexpr int kStoredCells = 35;  // grids are reset, and stored, for the cells 0 .. 35

void clearGrids(GameState& game) {
  game.tileCode.fillSquare(0, kStoredCells, 0);
  game.cellCapacity.fillSquare(0, kStoredCells, 0);
  for (int k = 1; k <= kServices; ++k) coverGrid(game, k).fillSquare(0, kStoredCells, 0);
  game.cellServices.fillSquare(0, kStoredCells, 0);
  game.cellTall.fillSquare(0, kStoredCells, 0);
  game.cellDirty.fillSquare(0, kStoredCells, 0);
  game.buildingId.fillSquare(0, kStoredCells, 0);
  for (int k = 1; k <= kServices; ++k) {
    game.roadService[k].fillSquare(0, kLastCell, 0);
    game.cellService[k].fillSquare(0, kLastCell, 0);
  }
}

}  // namespace

void clearWalker(GameState& game, int slot) {
  game.walkerX[slot] = game.walkerY[slot] = game.walkerDir[slot] = game.walkerFrame[slot] = 0;
  game.walkerPxX[slot] = game.walkerPxY[slot] = 0;
  game.walkerCellDX[slot] = game.walkerCellDY[slot] = 0;
  game.walkerActive[slot] = game.walkerDone[slot] = 0;
}

void clearWalkers(GameState& game) {
  for (int slot = 1; slot <= kWalkers; ++slot) clearWalker(game, slot);
}

void clearHistory(GameState& game) {
  for (int column = -4; column <= 50; ++column) {
    for (int row = 1; row <= 18; ++row) game.history(column, row) = 0;
  }
}

void resetGame(GameState& game, ProgramValues& values) {
  clearHistory(game);
  clearGrids(game);
  clearWalkers(game);
  for (int n = 1; n <= kTools; ++n) game.toolUnlocked[n] = 0;

  for (Number* number : {&game.food,
                         &game.population,
                         &game.housingCapacity,
                         &game.farmCount,
                         &game.marketRating,
                         &game.schoolRating,
                         &game.tavernRating,
                         &game.churchRating,
                         &game.doctorRating,
                         &game.taxPerTick,
                         &game.maintenancePerTick,
                         &game.maintenancePerMonth,
                         &game.taxThisMonth,
                         &game.maintenanceThisMonth,
                         &game.constructionThisMonth,
                         &game.tickOfMonth,
                         &game.scratchCount,
                         &game.buildingHousing,
                         &game.roadNeighbourCount,
                         &game.overlayView,
                         &game.newsTicks,
                         &game.hoverLabel,
                         &game.freeWalkerSlot,
                         &game.cellOriginX,
                         &game.cellOriginY,
                         &game.churchUnlocked,
                         &game.schoolUnlocked,
                         &game.doctorUnlocked,
                         &game.tavernUnlocked}) {
    *number = 0;
  }
  for (int n = 1; n <= 13; ++n) game.reserved[n] = 0;
  game.demolishFlag = 0;
  game.lastPaletteTool = 0;
  game.cursorX = game.cursorY = game.lastCursorX = game.lastCursorY = 0;
  game.scrollX = game.scrollY = 0;
  game.cursorPxX = game.cursorPxY = game.lastCellPxX = game.lastCellPxY = 0;
  game.cursorHidden = game.cursorRed = game.cursorGreen = 0;
  game.blitCount = 0;

  values.gSoundOn = 1;
  game.farmAnimationOn = 1;
  game.ticksPerMonth = 25;
  game.cursorFootprint = 1;
  game.currentTool = 8;
  game.month = 1;
  game.nextBuildingId = 1;
  game.walkersOn = 1;
  game.taxRate = 15;
  game.historyIndex = 1;
  game.monthLength = 30;
  game.famineState = 1;

  switch (values.gStartMoney) {
    case 1:
      game.gold = 300;
      break;
    case 2:
      game.gold = 600;
      break;
    case 3:
      game.gold = 1000;
      break;
    default:
      break;
  }
}

}  // namespace core
