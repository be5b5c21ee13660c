#include "map/views.h"

#include <array>

#include "core/vocabulary.h"
#include "sim/coverage.h"
#include "sim/residences.h"

namespace map {

namespace {

using core::City;

// One more than the board: the last line may carry marks and is never drawn.
constexpr int kLastScanned = core::kLastCell + 1;

/// The cells whose tall pictures can reach over a cell.
constexpr std::array<core::CellOffset, 6> kInFront{
    {{0, 1}, {1, 0}, {1, 1}, {1, 2}, {2, 1}, {2, 2}}};

void setFlat(City& city, int x, int y, int image) {
  city.tileImage(x, y) = image;
  city.cellDirty(x, y) = 1;
  city.cellTall(x, y) = 0;
}

void setTall(City& city, int x, int y, int image) {
  city.tileImage(x, y) = image;
  city.cellTall(x, y) = 1;
}

/// A field is bare for the first third of the month, then grows, then ripens; of the tests that
/// hold the last decides.
int farmImage(const City& city) {
  int image = core::kFarmImage1;
  if (city.farmAnimationOn == 1) {
    const double tick = city.tickOfMonth;
    const int third = city.monthLength.whole() / 3;
    if (tick > third) image = core::kFarmImage2;
    if (tick >= 2 * third) image = core::kFarmImage3;
  }
  return image;
}

void restoreBuildings(City& city) {
  const int field = farmImage(city);
  for (int y = 0; y <= kLastScanned; ++y) {
    for (int x = 0; x <= kLastScanned; ++x) {
      const int code = city.tileCode(x, y);
      const int service = core::serviceOfCode(code);
      if (service == core::kDoctor) {
        setTall(city, x, y, core::kDoctorImage);
      } else if (service != 0) {
        const core::Building& building = core::buildingOfService(service);
        const core::Look& block = building.look;
        const int piece = code - building.code;
        if (block.tall[piece] == 1) {
          setTall(city, x, y, block.images[piece]);
        } else {
          setFlat(city, x, y, block.images[piece]);
        }
      } else if (core::isFarmCode(code)) {
        setFlat(city, x, y, field);
      }
    }
  }
}

/// Gives the building anchored at (x, y) its own pictures again and marks its cells.
void showBlock(City& city, int x, int y, int service) {
  const core::Look& block = core::buildingOfService(service).look;
  for (std::size_t piece = 0; piece < core::kBlock.size(); ++piece) {
    const int cellX = x + core::kBlock[piece].x;
    const int cellY = y + core::kBlock[piece].y;
    city.tileImage(cellX, cellY) = block.images[piece];
    city.cellDirty(cellX, cellY) = 1;
  }
}

bool isUnderTallPicture(const City& city, int x, int y) {
  for (const core::CellOffset& d : kInFront) {
    if (city.cellTall(x + d.x, y + d.y) == 1) return true;
  }
  return false;
}

// The scan flattens buildings as it goes. The cells that ground is compared with all come later in
// it, so a building about to be flattened still counts, and its old top is cleared off the ground
// behind.
void colourByAccess(City& city, int view) {
  sim::markObjectCells(city);
  for (int y = 0; y <= kLastScanned; ++y) {
    for (int x = 0; x <= kLastScanned; ++x) {
      const int code = city.tileCode(x, y);
      if (code == core::kEmptyCode || code == core::kRoadCode) {
        if (isUnderTallPicture(city, x, y)) city.cellDirty(x, y) = 1;
      } else if (core::serviceOfCode(code) == view) {
        if (code == core::kDoctorCode) {
          setTall(city, x, y, core::kDoctorImage);
          city.cellDirty(x, y) = 1;
        } else if (code == core::buildingOfService(view).code) {
          showBlock(city, x, y, view);
        }
      } else if (core::isResidenceCode(code)) {
        const bool served = city.cellService[view](x, y) == 1;
        setFlat(city, x, y, served ? core::kServedImage : core::kUnservedImage);
      } else {
        setFlat(city, x, y, core::kOtherImage);
      }
    }
  }
}

}  // namespace

void applyOverlayView(Stage& stage) {
  core::GameState& game = stage.game;
  if (game.overlayView == 0) {
    sim::evolveResidences(game);
    restoreBuildings(game);
  } else {
    colourByAccess(game, game.overlayView.whole());
  }
  DrawTiles32(stage);
  DrawTiles2(stage);
  unmarkCells(game, 0, kLastScanned);
}

std::string_view viewName(int view) {
  return view == 0 ? "Normal view" : core::buildingOfService(view).access;
}

}  // namespace map
