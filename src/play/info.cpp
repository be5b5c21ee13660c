#include "play/info.h"

#include <cmath>

#include "core/number_text.h"
#include "core/vocabulary.h"

namespace play {

namespace {

/// Rating of a residence's site, by the number of effect areas over its cell.
constexpr const char* kTotals[] = {"Total:Very bad", "Total:Bad",       "Total:Neutral",
                                   "Total:Good",     "Total:Very good", "Total:Perfect"};

/// The name of a residence's stage. In an access view its picture names none, and the captions stay as
/// they are.
std::string_view stageOf(int image) {
  if (image == core::kTentImage) return "TENT";
  if (core::isHouseImage(image)) return "HOUSE";
  if (core::isApartmentImage(image)) return "APARTMENT";
  return {};
}

void describe(Scene& scene, std::string_view name, int upkeep, int reach) {
  scene.text(ui::namlbl).assign(name);
  core::setCaption(scene.text(ui::mailbl), "Maintenance:", upkeep);
  platform::Text& area = scene.text(ui::buildsize);
  if (reach == 0) {
    area.assign("Effect area:-");
  } else {
    core::setCaption(area, "Effect area:", reach, "x");
    area.append(core::NumberText(reach));
  }
}

void writeHousing(Scene& scene, int x, int y, int image) {
  core::GameState& game = scene.game;
  core::setCaption(scene.text(ui::poplbl), "Max. housing:", std::floor(game.cellCapacity(x, y)));
  if (!core::isHouseImage(image) && !core::isApartmentImage(image)) return;
  // A house or an apartment shows what the whole building holds; a tent only the pressed cell.
  game.buildingHousing = 0;
  for (int j = -2; j <= 2; ++j) {
    for (int i = -2; i <= 2; ++i) {
      if (game.buildingId(x + i, y + j) == game.buildingId(x, y)) {
        game.buildingHousing += game.cellCapacity(x + i, y + j);
      }
    }
  }
  core::setCaption(scene.text(ui::poplbl), "Max. housing:", std::floor(game.buildingHousing));
}

void writeAccess(Scene& scene, int x, int y, bool residence) {
  for (int k = 1; k <= core::kServices; ++k) {
    platform::Text& text = scene.text(ui::kAccessLabels[k - 1]);
    text.assign(core::buildingOfService(k).access);
    text.append(":");
    text.append(!residence ? "-" : scene.game.cellService[k](x, y) == 1 ? "Yes" : "No");
  }
}

int areasOver(const core::City& city, int x, int y) {
  int areas = 0;
  for (int k = 1; k <= core::kServices; ++k) areas += core::coverGrid(city, k)(x, y);
  return areas;
}

}  // namespace

void inspectCell(Scene& scene, core::Cell cell) {
  core::GameState& game = scene.game;
  const auto [x, y] = cell;
  const int code = game.tileCode(x, y);
  const int image = game.tileImage(x, y);
  const bool residence = core::isResidenceCode(code);

  scene.text(ui::poplbl).assign("Max. housing:-");
  if (residence) {
    const std::string_view stage = stageOf(image);
    if (!stage.empty()) describe(scene, stage, 0, 0);
  } else if (const core::Building* building = core::buildingOfCode(code)) {
    describe(scene, building->capitals, building->upkeep, building->reach);
  } else {
    describe(scene, "EMPTY LAND", 0, 0);
    scene.text(ui::mailbl).assign("Maintenance:-");
  }
  if (residence) writeHousing(scene, x, y, image);
  writeAccess(scene, x, y, residence);
  scene.text(ui::totlbl).assign(residence ? kTotals[areasOver(game, x, y)] : "Total:-");
}

}  // namespace play
