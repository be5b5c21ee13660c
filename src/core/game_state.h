// The game: everything that describes one city, and the few values that outlive it.
//
// State is plain data. Cells are addressed (x, y); x runs right and down on the screen, y left and
// down. Numbers that a saved game holds are `Number`, `Code` or `Flag`; what lives only while a
// game is open is plain. A fresh object holds unset numbers and unset grids: a new game resets them
// (core/new_game.h), a saved game or a city handed over replaces them.
#pragma once

#include <array>

#include "core/grid.h"
#include "core/number.h"

namespace core {

/// Cells per direction that the map draws and scans: 0 .. 30.
inline constexpr int kBoardSize = 31;
inline constexpr int kLastCell = kBoardSize - 1;
inline constexpr int kServices = 5;
inline constexpr int kWalkers = 10;
inline constexpr int kTools = 10;

/// The numbers of the services, which are also those of the access views.
enum Service { kMarket = 1, kSchool = 2, kTavern = 3, kChurch = 4, kDoctor = 5 };

/// A grid for each service, k from 1 on.
template <class T>
using LayerGrids = Row<CellGrid<T>, 1, kServices>;

/// What the menu owns: values that outlive a game and pass between the two screens.
struct ProgramValues {
  Number gMission;    // 1..10 campaign, 11 for one moment, 15 open play, 16 demonstration, 20..29
                      // puzzles
  Number gYear;       // calendar year, from kFirstYear (core/missions.h)
  Number gMapSize;    // side S of the play square, even, 4..28
  Number gFertility;  // food factor of farms: 1.2, 1 or 0.8
  Number gSoundOn;    // sound effects on, 1 or 0

  int gStartMoney = 0;       // money choice: 1, 2 or 3
  int gNewMap = 0;           // the game screen must build a new map
  int gContinueMission = 0;  // the game screen must take over the city of the mission before
  int gLoadPending = 0;      // the game screen opens on the load panel
  int gBackToMenu = 0;       // a mission was won: the menu shows the briefing
  int gReturnPuzzle = 0;     // a puzzle level ended: the menu shows the list of levels
  int gReplayedMission = 0;  // an earlier mission was won again; never cleared
  double gOpenDifficulty = 0;
  double gReservedNumber = 0;
  Row<double, 1, 10> puzzleDone;  // 1 for a solved level

  int gScreenW = 0;
  double gScreenH = 0;
  int gResolutionSaved = 0;

  int selectedMission = 0;  // mission on the briefing panel, one below its number; 10: closing text
  double mapSizeFactor = 1;
  double fertilityFactor = 1;
  double moneyFactor = 1;
};

/// The city: its cells, money, people and time. A saved game holds all of it but tileImage.
struct City {
  CellGrid<Code> tileCode;                      // what is built on a cell (core/vocabulary.h)
  Table<std::int16_t, 0, 35, 0, 35> tileImage;  // number of the picture drawn for a cell
  CellGrid<Number> buildingId;                  // the same for all cells of one building
  CellGrid<Number> cellCapacity;                // people that one residence cell holds
  CellGrid<Flag> marketCover, schoolCover, tavernCover, churchCover, doctorCover;
  CellGrid<Flag> cellServices;   // services that reach the cell, 0..5
  LayerGrids<Flag> roadService;  // [k]: road cell carries service k
  LayerGrids<Flag> cellService;  // [k]: residence cell has service k by road
  CellGrid<Flag> cellTall;       // drawn in the tall layer
  CellGrid<Flag> cellDirty;      // to be repainted by the next redraw
  Number nextBuildingId;

  Table<Number, -14, 100, -4, 28> history;  // (column, row): rows 1..14, a column a month
  Number historyIndex;                      // column of the current month

  Number gold, food, population, housingCapacity, farmCount, taxRate;
  Number famineState;  // 0 none, 1 a rebuild is due at the month roll, 2 starving and rebuilt
  Number marketRating, schoolRating, tavernRating, churchRating, doctorRating;  // whole percent
  Number taxPerTick, maintenancePerTick, maintenancePerMonth;
  Number taxThisMonth, maintenanceThisMonth, constructionThisMonth;

  Number month, tickOfMonth, monthLength, ticksPerMonth;
  Number farmAnimationOn;  // fields change their picture in the course of a month

  Row<Number, 1, 10> toolUnlocked;  // 1 church, 2 school, 3 doctor, 4 tavern
  Number churchUnlocked, schoolUnlocked, doctorUnlocked, tavernUnlocked;
};

/// The player's hand and view: tool, cell, cursor, scroll, and what is shown of the city.
struct Hand {
  Number currentTool, cellX, cellY, overlayView, hoverLabel;
  Number cellOriginX, cellOriginY;  // corner of the lattice block under the pointer, in pixels
  Number buildingHousing;           // people that the inspected building holds
  Number newsTicks;                 // quarter seconds that the banner has been up
  int demolishFlag = 0;             // the demolition in progress takes a road away
  int cursorFootprint = 0;          // side of the cursor's diamond, in cells
  int lastPaletteTool = 0;

  int cursorX = 0, cursorY = 0, lastCursorX = 0, lastCursorY = 0;  // screen pixels
  int scrollX = 0, scrollY = 0;                                    // pixels from the resting place
  double cursorPxX = 0, cursorPxY = 0, lastCellPxX = 0, lastCellPxY = 0;
  int cursorHidden = 0, cursorRed = 0, cursorGreen = 0;
};

/// The people on the roads, in slots 1..10. Only walkersOn and freeWalkerSlot are saved.
struct Walkers {
  Number walkersOn, freeWalkerSlot;
  Row<int, 1, kWalkers> walkerX, walkerY, walkerDir, walkerFrame, walkerPxX, walkerPxY,
      walkerCellDX, walkerCellDY, walkerActive, walkerDone;
  int laneCount = 0, laneCount2 = 0, activeWalkers = 0, spawnX = 0, spawnY = 0;
};

struct Earthquake {
  int quakeShakePhase = 0, quakeShakeTicks = 0, quakeReportPending = 0;
  double populationBeforeQuake = 0;
};

struct Music {
  int musicTrack = 0, musicAuto = 0;
};

struct Demonstration {
  int demoStep = 0, demoTool = 0;
};

/// Measures of the drawing, which the opening notes for the driver (map/geometry.h is what drawing
/// goes by), and the copies of the current 200 ms.
struct Drawing {
  int drawTileWidth = 0, drawTileHeight = 0, drawBoardSize = 0, drawOffsetY = 0;
  int blitCount = 0;
};

/// Working numbers that a saved game names. They carry nothing from one handler to the next.
struct RecordNumbers {
  Number i, j, k, l, scratchCount, withAccess, withoutAccess, ratingIndex, reachedMission;
  Number roadNeighbourCount;
  Row<Number, 1, 15> reserved;
};

/// All of a game. A function takes the group that it works on, not the whole.
struct GameState : City, Hand, Walkers, Earthquake, Music, Demonstration, Drawing, RecordNumbers {};

/// First cell of the play square; its last is mapMargin + gMapSize.
inline double mapMargin(const ProgramValues& values) {
  return (30 - values.gMapSize) / 2;
}

/// Where the city keeps what belongs to a service, in the order of Service.
inline constexpr std::array<CellGrid<Flag> City::*, kServices> kCoverGrids{
    &City::marketCover, &City::schoolCover, &City::tavernCover, &City::churchCover,
    &City::doctorCover};
inline constexpr std::array<Number City::*, kServices> kRatings{
    &City::marketRating, &City::schoolRating, &City::tavernRating, &City::churchRating,
    &City::doctorRating};

/// Cover grid of service k, 1..5.
inline CellGrid<Flag>& coverGrid(City& city, int k) {
  return city.*kCoverGrids[k - 1];
}
inline const CellGrid<Flag>& coverGrid(const City& city, int k) {
  return city.*kCoverGrids[k - 1];
}

/// Rating of service k, 1..5.
inline Number& rating(City& city, int k) {
  return city.*kRatings[k - 1];
}
inline const Number& rating(const City& city, int k) {
  return city.*kRatings[k - 1];
}

}  // namespace core
