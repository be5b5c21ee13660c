// The cells of a city and the sums over them.
#include <cmath>
#include <cstdlib>

#include "core/missions.h"
#include "core/vocabulary.h"
#include "monkey/watch.h"
#include "sim/coverage.h"

namespace monkey {

namespace {

using core::GameState;
using core::Look;

struct City {
  const GameState& game;
  const core::ProgramValues& values;
  bool stale;
  bool inView;

  int code(int x, int y) const { return game.tileCode(x, y); }
  int image(int x, int y) const { return game.tileImage(x, y); }
  int tall(int x, int y) const { return game.cellTall(x, y); }
};

bool shows(const City& c, int x, int y, const Look& design) {
  for (std::size_t n = 0; n < 4; ++n) {
    const int cellX = x + core::kBlock[n].x;
    const int cellY = y + core::kBlock[n].y;
    if (c.image(cellX, cellY) != design.images[n] || c.tall(cellX, cellY) != design.tall[n]) {
      return false;
    }
  }
  return true;
}

bool flatImages(const City& c, int x, int y, int side, int low, int high) {
  for (int dy = 0; dy < side; ++dy) {
    for (int dx = 0; dx < side; ++dx) {
      const int image = c.image(x + dx, y + dy);
      if (image < low || image > high || c.tall(x + dx, y + dy) != 0) return false;
    }
  }
  return true;
}

bool isWhole(const City& c, int x, int y, int side) {
  for (int dy = 0; dy < side; ++dy) {
    for (int dx = 0; dx < side; ++dx) {
      const int piece = side == 2 ? dx + 2 * dy : 3 * dx + dy;
      if (c.code(x + dx, y + dy) != c.code(x, y) + piece ||
          c.game.buildingId(x + dx, y + dy) != c.game.buildingId(x, y)) {
        return false;
      }
    }
  }
  return true;
}

const char* residenceFault(const City& c, int x, int y) {
  double least = 1e9;
  for (const auto& d : core::kBlock) {
    least = std::min(least, static_cast<double>(c.game.cellCapacity(x + d.x, y + d.y)));
  }
  const Look& due = least > 9 ? core::kApartment : least > 4 ? core::kHouse : core::kTent;
  if (shows(c, x, y, due)) return nullptr;
  const bool anyStage = shows(c, x, y, core::kTent) || shows(c, x, y, core::kHouse) ||
                        shows(c, x, y, core::kApartment);
  if (c.stale && anyStage) return nullptr;
  if (c.inView && flatImages(c, x, y, 2, core::kServedImage, core::kUnservedImage)) return nullptr;
  return anyStage ? "a residence shows another stage than it has"
                  : "a residence shows odd pictures";
}

const char* blockFault(const City& c, int x, int y, int service) {
  if (shows(c, x, y, core::buildingOfService(service).look)) return nullptr;
  if (c.inView && service != c.game.overlayView.whole() &&
      flatImages(c, x, y, 2, core::kOtherImage, core::kOtherImage)) {
    return nullptr;
  }
  return "a building shows odd pictures";
}

const char* doctorFault(const City& c, int x, int y) {
  if (c.image(x, y) == core::kDoctorImage && c.tall(x, y) == 1) return nullptr;
  if (c.inView && c.game.overlayView.whole() != core::kDoctor &&
      c.image(x, y) == core::kOtherImage && c.tall(x, y) == 0) {
    return nullptr;
  }
  return "a doctor shows an odd picture";
}

const char* farmFault(const City& c, int x, int y) {
  const int image = c.image(x, y);
  const bool field = image == 13 || (c.game.farmAnimationOn == 1 && (image == 54 || image == 55));
  if (!field && !(c.inView && image == core::kOtherImage)) return "a farm shows an odd picture";
  return flatImages(c, x, y, 3, image, image) ? nullptr
                                              : "the cells of a farm show different pictures";
}

const char* roadFault(const City& c, int x, int y) {
  const int image = c.image(x, y);
  const bool road = image == 1 || image == 2 || image == 37 || (image >= 49 && image <= 52);
  return road && c.tall(x, y) == 0 ? nullptr : "a road shows an odd picture";
}

const char* groundFault(const City& c, int x, int y, bool inSquare) {
  const int image = c.image(x, y);
  const core::Mission* mission = core::missionOf(c.values.gMission);
  const bool walled = mission != nullptr && mission->walls;
  if (image >= 59 && image <= 61) {
    return walled && !inSquare && c.tall(x, y) == 1 ? nullptr : "a wall where none belongs";
  }
  if (c.tall(x, y) != 0) return "empty land counts as tall";
  if (!inSquare) return image == core::kVoidImage ? nullptr : "no void outside the square";
  return image == 0 || image == 28 || image == 29 ? nullptr : "empty land shows an odd picture";
}

/// The anchor's whole building; the other cells are looked at through their anchor.
const char* buildingFault(const City& c, int x, int y) {
  const int code = c.code(x, y);
  const int service = core::serviceOfCode(code);
  if (code == core::kRoadCode) return roadFault(c, x, y);
  if (code == core::kDoctorCode) return doctorFault(c, x, y);
  if (code == core::kFarmCode) {
    return isWhole(c, x, y, 3) ? farmFault(c, x, y) : "a farm is not whole";
  }
  if (code % 10 == 1) {
    if (!isWhole(c, x, y, 2)) return "a building is not whole";
    return service == 0 ? residenceFault(c, x, y) : blockFault(c, x, y, service);
  }
  const int piece = core::isFarmCode(code) ? code - core::kFarmCode : code % 10 - 1;
  const int dx = core::isFarmCode(code) ? piece / 3 : piece % 2;
  const int dy = core::isFarmCode(code) ? piece % 3 : piece / 2;
  return c.code(x - dx, y - dy) == code - piece ? nullptr : "a cell belongs to no building";
}

const char* cellFault(const City& c, int x, int y) {
  const double low = core::mapMargin(c.values);
  const double high = low + c.values.gMapSize;
  const bool inSquare = x >= low && y >= low && x <= high && y <= high;
  const int code = c.code(x, y);
  if (code == core::kEmptyCode) return groundFault(c, x, y, inSquare);
  if (!inSquare) return "a building stands outside the square";
  const double id = c.game.buildingId(x, y);
  if (id < 1 || id >= c.game.nextBuildingId) return "a building has an odd id";
  return buildingFault(c, x, y);
}

bool near(double a, double b) {
  return std::fabs(a - b) <= 1e-9 * (1 + std::fabs(a));
}

const char* capacityFault(const City& c, int x, int y, double& sum) {
  const GameState& game = c.game;
  int services = 0;
  for (int k = 1; k <= core::kServices; ++k) services += game.cellService[k](x, y);
  if (game.cellServices(x, y) != services) return "the count of services is not that of the flags";
  const double holds = game.cellCapacity(x, y);
  if (!core::isResidenceCode(c.code(x, y)))
    return holds == 0 ? nullptr : "empty land houses people";
  sum += holds;
  const double full = (2 * services + 2) * (1 + (15 - game.taxRate) / 50);
  return near(holds, full) || (full >= 4 && holds == 4) ? nullptr : "a residence holds odd numbers";
}

const char* numbersFault(const GameState& game) {
  const auto whole = [](double v) { return v == std::floor(v); };
  if (!whole(game.population) || game.population < 0) return "the population is odd";
  if (!whole(game.housingCapacity)) return "the housing is no whole number";
  if (!(game.food >= 0)) return "the food is below nothing";
  if (!std::isfinite(game.gold)) return "the gold is no number";
  if (game.taxRate < 0 || game.taxRate > 30 || std::fmod(game.taxRate, 5) != 0) return "odd tax";
  if (game.month < 1 || game.month > 12) return "odd month";
  if (game.historyIndex < 1 || game.historyIndex > 43) return "odd column of the history";
  if (game.tickOfMonth < 0 || game.tickOfMonth > game.monthLength) return "odd tick of the month";
  if (game.famineState < 0 || game.famineState > 2) return "odd famine";
  const double length = game.monthLength;
  if (length != 30 && length != 16 && length != 25 && length != 34) return "odd length of a month";
  for (int k = 1; k <= core::kServices; ++k) {
    const double percent = core::rating(const_cast<GameState&>(game), k);
    if (!whole(percent) || percent < 0 || percent > 100) return "odd rating";
  }
  return nullptr;
}

}  // namespace

bool coverFits(const core::GameState& game) {
  static GameState copy;
  copy = game;
  sim::rebuildCoverage(copy);
  for (int k = 1; k <= core::kServices; ++k) {
    for (int y = 0; y <= core::kLastCell; ++y) {
      for (int x = 0; x <= core::kLastCell; ++x) {
        if (core::coverGrid(copy, k)(x, y) != core::coverGrid(game, k)(x, y)) {
          return false;
        }
      }
    }
  }
  return true;
}

std::string cityFault(const GameState& game, const core::ProgramValues& values, bool stale) {
  const City c{game, values, stale, game.overlayView != 0};
  double housing = 0;
  int farms = 0;
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      const char* fault = cellFault(c, x, y);
      if (fault == nullptr) fault = capacityFault(c, x, y, housing);
      if (fault != nullptr) {
        return std::string(fault) + " at " + std::to_string(x) + "," + std::to_string(y) +
               ": code " + std::to_string(c.code(x, y)) + ", image " +
               std::to_string(c.image(x, y)) + ", tall " + std::to_string(c.tall(x, y)) +
               ", view " + std::to_string(game.overlayView.whole()) + ", holds " +
               std::to_string(game.cellCapacity(x, y));
      }
      farms += c.code(x, y) == core::kFarmCode;
    }
  }
  if (const char* fault = numbersFault(game)) return fault;
  if (game.farmCount != farms) return "farmCount is not that of the map";
  // A loaded game holds fifteen digits of each cell's number.
  if (housing < game.housingCapacity - 1e-6 || housing >= game.housingCapacity + 1 + 1e-6) {
    return "housingCapacity is not the sum of the cells: " + std::to_string(housing);
  }
  return "";
}

}  // namespace monkey
