#include "core/new_game.h"

#include "core/buildings.h"

namespace core {

namespace {

constexpr int kStoredCells = 35;  // grids are reset, and stored, for the cells 0 .. 35

void clearGrids(City& city) {
  city.tileCode.fillSquare(0, kStoredCells, 0);
  city.cellCapacity.fillSquare(0, kStoredCells, 0);
  for (int k = 1; k <= kServices; ++k) coverGrid(city, k).fillSquare(0, kStoredCells, 0);
  city.cellServices.fillSquare(0, kStoredCells, 0);
  city.cellTall.fillSquare(0, kStoredCells, 0);
  city.cellDirty.fillSquare(0, kStoredCells, 0);
  city.buildingId.fillSquare(0, kStoredCells, 0);
  for (int k = 1; k <= kServices; ++k) {
    city.roadService[k].fillSquare(0, kLastCell, 0);
    city.cellService[k].fillSquare(0, kLastCell, 0);
  }
}

}  // namespace

void clearWalker(Walkers& walkers, int slot) {
  walkers.walkerX[slot] = walkers.walkerY[slot] = walkers.walkerDir[slot] =
      walkers.walkerFrame[slot] = 0;
  walkers.walkerPxX[slot] = walkers.walkerPxY[slot] = 0;
  walkers.walkerCellDX[slot] = walkers.walkerCellDY[slot] = 0;
  walkers.walkerActive[slot] = walkers.walkerDone[slot] = 0;
}

void clearWalkers(Walkers& walkers) {
  for (int slot = 1; slot <= kWalkers; ++slot) clearWalker(walkers, slot);
}

void clearHistory(City& city) {
  for (int column = -4; column <= 50; ++column) {
    for (int row = 1; row <= 18; ++row) city.history(column, row) = 0;
  }
}

void resetGame(GameState& game, ProgramValues& values) {
  clearHistory(game);
  clearGrids(game);
  clearWalkers(game);
  for (int n = 1; n <= kTools; ++n) game.toolUnlocked[n] = 0;

  for (int k = 1; k <= kServices; ++k) rating(game, k) = 0;
  for (const Building& building : kBuildings) {
    if (building.unlocking.reached != nullptr) game.*building.unlocking.reached = 0;
  }
  game.food = game.population = game.housingCapacity = game.farmCount = 0;
  game.taxPerTick = game.maintenancePerTick = game.maintenancePerMonth = 0;
  game.taxThisMonth = game.maintenanceThisMonth = game.constructionThisMonth = 0;
  game.tickOfMonth = game.scratchCount = game.roadNeighbourCount = 0;
  game.buildingHousing = game.overlayView = game.newsTicks = game.hoverLabel = 0;
  game.cellOriginX = game.cellOriginY = 0;
  game.freeWalkerSlot = 0;
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
  game.currentTool = kRoadTool;
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
