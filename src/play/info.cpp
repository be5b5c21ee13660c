#include "play/info.h"

#include <cmath>

#include "core/number_text.h"
#include "core/vocabulary.h"

namespace play {

namespace {

struct AccessLabel {
  int service;
  int control;
  const char* caption;
};
constexpr AccessLabel kAccessLabels[] = {
    {core::kMarket, ui::marlbl, "Market access:"}, {core::kSchool, ui::schlbl, "School access:"},
    {core::kTavern, ui::tavlbl, "Tavern access:"}, {core::kChurch, ui::chulbl, "Church access:"},
    {core::kDoctor, ui::doclbl, "Doctor access:"},
};

/// How well a residence lies: by the number of effect areas over its cell.
constexpr const char* kTotals[] = {"Total:Very bad", "Total:Bad",       "Total:Neutral",
                                   "Total:Good",     "Total:Very good", "Total:Perfect"};

struct Description {
  const char* name;
  const char* maintenance;
  const char* area;
};

/// What the code of a cell says; no name for a residence, which its picture names.
Description describeCode(int code) {
  switch (core::serviceOfCode(code)) {
    case core::kMarket:
      return {"MARKET", "Maintenance:50", "Effect area:5x5"};
    case core::kSchool:
      return {"SCHOOL", "Maintenance:50", "Effect area:6x6"};
    case core::kTavern:
      return {"TAVERN", "Maintenance:50", "Effect area:4x4"};
    case core::kChurch:
      return {"CHURCH", "Maintenance:50", "Effect area:5x5"};
    case core::kDoctor:
      return {"DOCTOR", "Maintenance:50", "Effect area:4x4"};
    default:
      break;
  }
  if (code == core::kRoadCode) return {"ROAD", "Maintenance:0", "Effect area:-"};
  if (core::isFarmCode(code)) return {"FARM", "Maintenance:20", "Effect area:-"};
  if (code == core::kEmptyCode) return {"EMPTY LAND", "Maintenance:-", "Effect area:-"};
  return {nullptr, nullptr, nullptr};
}

/// A residence's stage. In an access view its picture names none, and the captions stay as they
/// are.
Description describeResidence(int image) {
  if (image == core::kTentImage) return {"TENT", "Maintenance:0", "Effect area:-"};
  if (core::isHouseImage(image)) return {"HOUSE", "Maintenance:0", "Effect area:-"};
  if (core::isApartmentImage(image)) return {"APARTMENT", "Maintenance:0", "Effect area:-"};
  return {nullptr, nullptr, nullptr};
}

void writeHousing(Scene& scene, int x, int y, int image) {
  core::GameState& game = scene.game;
  core::setCaption(scene.text(ui::poplbl), "Max. housing:", std::floor(game.cellCapacity(x, y)));
  if (!core::isHouseImage(image) && !core::isApartmentImage(image)) return;
  // A house or an apartment tells what the whole building holds; a tent only its pressed cell.
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
  for (const AccessLabel& label : kAccessLabels) {
    platform::Text& text = scene.text(label.control);
    text.assign(label.caption);
    text.append(!residence ? "-" : scene.game.cellService[label.service](x, y) == 1 ? "Yes" : "No");
  }
}

int areasOver(const core::GameState& game, int x, int y) {
  int areas = 0;
  for (int k = 1; k <= core::kServices; ++k) areas += core::coverGrid(game, k)(x, y);
  return areas;
}

}  // namespace

void inspectCell(Scene& scene) {
  core::GameState& game = scene.game;
  const int x = game.cellX.whole();
  const int y = game.cellY.whole();
  const int code = game.tileCode(x, y);
  const int image = game.tileImage(x, y);
  const bool residence = core::isResidenceCode(code);

  scene.text(ui::poplbl).assign("Max. housing:-");
  const Description words = residence ? describeResidence(image) : describeCode(code);
  if (words.name != nullptr) {
    scene.text(ui::namlbl).assign(words.name);
    scene.text(ui::mailbl).assign(words.maintenance);
    scene.text(ui::buildsize).assign(words.area);
  }
  if (residence) writeHousing(scene, x, y, image);
  writeAccess(scene, x, y, residence);
  scene.text(ui::totlbl).assign(residence ? kTotals[areasOver(game, x, y)] : "Total:-");
}

}  // namespace play
