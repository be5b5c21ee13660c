#include "driver/state_names.h"

#include <variant>

namespace driver {

namespace {

using core::CellGrid;
using core::Code;
using core::Flag;
using core::GameState;
using core::LayerGrids;
using core::Number;
using core::ProgramValues;
using core::Row;
using core::Table;

template <class Owner>
using Member = std::variant<Number Owner::*, int Owner::*, double Owner::*, CellGrid<Code> Owner::*,
                            CellGrid<Number> Owner::*, CellGrid<Flag> Owner::*,
                            LayerGrids<Flag> Owner::*, Table<std::int16_t, 0, 35, 0, 35> Owner::*,
                            Table<Number, -14, 100, -4, 28> Owner::*, Row<Number, 1, 10> Owner::*,
                            Row<Number, 1, 15> Owner::*, Row<int, 1, 10> Owner::*,
                            Row<double, 1, 10> Owner::*>;

template <class Owner>
struct Named {
  std::string_view name;
  Member<Owner> member;
};

#define NAME(owner, name) \
  Named<owner> {          \
#name, &owner::name   \
  }

// clang-format off
constexpr Named<ProgramValues> kProgramNames[] = {
    NAME(ProgramValues, gMission), NAME(ProgramValues, gYear), NAME(ProgramValues, gMapSize),
    NAME(ProgramValues, gFertility), NAME(ProgramValues, gSoundOn),
    NAME(ProgramValues, gStartMoney), NAME(ProgramValues, gNewMap),
    NAME(ProgramValues, gContinueMission), NAME(ProgramValues, gLoadPending),
    NAME(ProgramValues, gBackToMenu), NAME(ProgramValues, gReturnPuzzle),
    NAME(ProgramValues, gReplayedMission), NAME(ProgramValues, gOpenDifficulty),
    NAME(ProgramValues, gReservedNumber), NAME(ProgramValues, gScreenW),
    NAME(ProgramValues, gScreenH), NAME(ProgramValues, gResolutionSaved),
    NAME(ProgramValues, selectedMission), NAME(ProgramValues, mapSizeFactor),
    NAME(ProgramValues, fertilityFactor), NAME(ProgramValues, moneyFactor),
    {"puzzleDone", &ProgramValues::puzzleDone},
};

constexpr Named<GameState> kGameNames[] = {
    NAME(GameState, tileCode), NAME(GameState, tileImage), NAME(GameState, buildingId),
    NAME(GameState, cellCapacity), NAME(GameState, marketCover), NAME(GameState, schoolCover),
    NAME(GameState, tavernCover), NAME(GameState, churchCover), NAME(GameState, doctorCover),
    NAME(GameState, cellServices), NAME(GameState, roadService), NAME(GameState, cellService),
    NAME(GameState, cellTall), NAME(GameState, cellDirty), NAME(GameState, history),
    NAME(GameState, toolUnlocked), NAME(GameState, walkerX), NAME(GameState, walkerY),
    NAME(GameState, walkerDir), NAME(GameState, walkerFrame), NAME(GameState, walkerPxX),
    NAME(GameState, walkerPxY), NAME(GameState, walkerCellDX), NAME(GameState, walkerCellDY),
    NAME(GameState, walkerActive), NAME(GameState, walkerDone), NAME(GameState, gold),
    NAME(GameState, food), NAME(GameState, population), NAME(GameState, housingCapacity),
    NAME(GameState, farmCount), NAME(GameState, taxRate), NAME(GameState, famineState),
    NAME(GameState, marketRating), NAME(GameState, schoolRating), NAME(GameState, tavernRating),
    NAME(GameState, churchRating), NAME(GameState, doctorRating), NAME(GameState, taxPerTick),
    NAME(GameState, maintenancePerTick), NAME(GameState, maintenancePerMonth),
    NAME(GameState, taxThisMonth), NAME(GameState, maintenanceThisMonth),
    NAME(GameState, constructionThisMonth), NAME(GameState, month), NAME(GameState, tickOfMonth),
    NAME(GameState, monthLength), NAME(GameState, ticksPerMonth), NAME(GameState, historyIndex),
    NAME(GameState, nextBuildingId), NAME(GameState, currentTool), NAME(GameState, cellX),
    NAME(GameState, cellY), NAME(GameState, buildingHousing), NAME(GameState, roadNeighbourCount),
    NAME(GameState, overlayView), NAME(GameState, walkersOn), NAME(GameState, farmAnimationOn),
    NAME(GameState, newsTicks), NAME(GameState, hoverLabel), NAME(GameState, freeWalkerSlot),
    NAME(GameState, cellOriginX), NAME(GameState, cellOriginY), NAME(GameState, churchUnlocked),
    NAME(GameState, schoolUnlocked), NAME(GameState, doctorUnlocked),
    NAME(GameState, tavernUnlocked), NAME(GameState, demolishFlag),
    NAME(GameState, cursorFootprint), NAME(GameState, lastPaletteTool), NAME(GameState, i),
    NAME(GameState, j), NAME(GameState, k), NAME(GameState, l), NAME(GameState, scratchCount),
    NAME(GameState, withAccess), NAME(GameState, withoutAccess), NAME(GameState, ratingIndex),
    NAME(GameState, reachedMission), NAME(GameState, reserved), NAME(GameState, quakeShakePhase),
    NAME(GameState, quakeShakeTicks), NAME(GameState, quakeReportPending),
    NAME(GameState, populationBeforeQuake), NAME(GameState, cursorX), NAME(GameState, cursorY),
    NAME(GameState, lastCursorX), NAME(GameState, lastCursorY), NAME(GameState, scrollX),
    NAME(GameState, scrollY), NAME(GameState, cursorPxX), NAME(GameState, cursorPxY),
    NAME(GameState, lastCellPxX), NAME(GameState, lastCellPxY), NAME(GameState, cursorHidden),
    NAME(GameState, cursorRed), NAME(GameState, cursorGreen), NAME(GameState, drawTileWidth),
    NAME(GameState, drawTileHeight), NAME(GameState, drawBoardSize), NAME(GameState, drawOffsetY),
    NAME(GameState, blitCount), NAME(GameState, laneCount), NAME(GameState, laneCount2),
    NAME(GameState, activeWalkers), NAME(GameState, spawnX), NAME(GameState, spawnY),
    NAME(GameState, musicTrack), NAME(GameState, musicAuto), NAME(GameState, demoStep),
    NAME(GameState, demoTool),
};
// clang-format on

#undef NAME

bool fits(int index, int low, int high, std::string& error) {
  if (index >= low && index <= high) return true;
  error = "index " + std::to_string(index) + " outside " + std::to_string(low) + " .. " +
          std::to_string(high);
  return false;
}

bool wantIndices(std::span<const int> indices, std::size_t wanted, std::string& error) {
  if (indices.size() == wanted) return true;
  error = "takes " + std::to_string(wanted) + " indices";
  return false;
}

/// Calls `use` with the number that name and indices mean.
template <class Use>
struct Finder {
  std::span<const int> indices;
  std::string& error;
  Use use;

  bool operator()(Number& number) { return wantIndices(indices, 0, error) && use(number); }
  bool operator()(int& number) { return wantIndices(indices, 0, error) && use(number); }
  bool operator()(double& number) { return wantIndices(indices, 0, error) && use(number); }

  template <class T, int Low, int High>
  bool operator()(Row<T, Low, High>& row) {
    return wantIndices(indices, 1, error) && fits(indices[0], Low, High, error) &&
           use(row[indices[0]]);
  }
  template <class T, int LowX, int HighX, int LowY, int HighY>
  bool operator()(Table<T, LowX, HighX, LowY, HighY>& table) {
    return wantIndices(indices, 2, error) && fits(indices[0], LowX, HighX, error) &&
           fits(indices[1], LowY, HighY, error) && use(table(indices[0], indices[1]));
  }
  bool operator()(LayerGrids<Flag>& layers) {
    if (!wantIndices(indices, 3, error) || !fits(indices[0], 1, core::kServices, error))
      return false;
    CellGrid<Flag>& grid = layers[indices[0]];
    indices = indices.subspan(1);
    return (*this)(grid);
  }
};

template <class Owner, class Use>
bool findIn(Owner& owner, std::span<const Named<Owner>> names, std::string_view name,
            std::span<const int> indices, std::string& error, Use use, bool& known) {
  for (const Named<Owner>& entry : names) {
    if (entry.name != name) continue;
    known = true;
    Finder<Use> finder{indices, error, use};
    return std::visit([&](auto member) { return finder(owner.*member); }, entry.member);
  }
  return false;
}

/// The number at the end of a name that has a number of its own instead of an index: puzzleDone1 to
/// puzzleDone10, reserved1 to reserved15. 0 where there is none up to `last`.
int numberBehind(std::string_view prefix, std::string_view name, int last) {
  if (!name.starts_with(prefix)) return 0;
  name.remove_prefix(prefix.size());
  for (int n = 1; n <= last; ++n) {
    if (name == std::to_string(n)) return n;
  }
  return 0;
}

template <class Use>
bool find(State state, std::string_view name, std::span<const int> indices, std::string& error,
          Use use) {
  if (const int n = numberBehind("puzzleDone", name, 10); n != 0) {
    return wantIndices(indices, 0, error) && use(state.values->puzzleDone[n]);
  }
  bool known = false;
  if (findIn<ProgramValues>(*state.values, kProgramNames, name, indices, error, use, known)) {
    return true;
  }
  if (known) return false;
  core::GameState none;
  core::GameState& game = state.game != nullptr ? *state.game : none;
  const int reserved = numberBehind("reserved", name, 15);
  known = reserved != 0;
  const bool found = known ? wantIndices(indices, 0, error) && use(game.reserved[reserved])
                           : findIn<GameState>(game, kGameNames, name, indices, error, use, known);
  if (known && state.game == nullptr) {
    error = "no game is open";
    return false;
  }
  if (!known) error = "no value named " + std::string(name);
  return found;
}

}  // namespace

bool getValue(State state, std::string_view name, std::span<const int> indices, double& value,
              std::string& error) {
  if (name == "mapMargin") {
    value = core::mapMargin(*state.values);
    return wantIndices(indices, 0, error);
  }
  return find(state, name, indices, error, [&value](auto& number) {
    value = static_cast<double>(number);
    return true;
  });
}

bool setValue(State state, std::string_view name, std::span<const int> indices, double value,
              std::string& error) {
  return find(state, name, indices, error, [&](auto& number) {
    using T = std::remove_reference_t<decltype(number)>;
    if constexpr (std::is_same_v<T, Number> || std::is_same_v<T, double>) {
      number = value;
    } else {
      constexpr double kLimit = std::is_same_v<T, Flag>  ? 127
                                : std::is_same_v<T, int> ? 2e9
                                                         : 32767;
      const bool whole = value >= -kLimit && value <= kLimit && value == static_cast<int>(value);
      if (!whole) {
        error = "takes a whole number within " + std::to_string(static_cast<int>(kLimit));
        return false;
      }
      number = static_cast<std::conditional_t<std::is_same_v<T, std::int16_t>, std::int16_t, int>>(
          value);
    }
    return true;
  });
}

}  // namespace driver
