#include "play/palette.h"

#include "core/buildings.h"
#include "core/number_text.h"

namespace play {

namespace {

void takeInHand(Scene& scene, int tool) {
  scene.game.currentTool = tool;
  holdKeys(scene);
}

/// Takes a tool in hand that places or demolishes. Only what demolishes has no price.
void takeForWork(Scene& scene, int tool) {
  takeInHand(scene, tool);
  const core::Building* building = core::buildingOfTool(tool);
  platform::Text& current = scene.text(ui::buildcurrent);
  current.assign("Current:");
  current.append(building == nullptr ? "Demolish" : building->name);
  if (building == nullptr) {
    scene.text(ui::buildprice).assign("Price:-");
  } else {
    core::setCaption(scene.text(ui::buildprice), "Price:", building->price);
  }
  scene.game.cursorFootprint = building == nullptr ? 1 : building->side;
}

}  // namespace

void holdKeys(Scene& scene) {
  const int tool = scene.game.currentTool.whole();
  for (int i = 0; i < ui::kToolKeys; ++i)
    scene.form[ui::Command1 + i].held = core::toolOfKey(i) == tool;
  scene.form[ui::inform].held = tool == core::kInfoTool;
  scene.form[ui::building].held = tool != core::kInfoTool;
  for (int view = 0; view <= core::kServices; ++view) {
    scene.form[ui::seer + view].held = scene.game.overlayView == view;
  }
}

void selectTool(Scene& scene, int index) {
  const int tool = core::toolOfKey(index);
  scene.cue(sound::kTool);
  takeForWork(scene, tool);
  scene.game.lastPaletteTool = tool;
}

void enterBuildMode(Scene& scene) {
  scene.cue(sound::kClick);
  scene.form.hide(ui::tileinfo);
  scene.form.show(ui::Frame1);
  scene.text(ui::Label4).assign("BUILD MODE");
  scene.text(ui::namlbl).clear();
  say(scene, "BUILD MODE SELECTED");
  scene.text(ui::buildsize).assign("Effect area:  ");
  takeForWork(scene, core::kRoadTool);
}

void enterInfoMode(Scene& scene) {
  scene.cue(sound::kClick);
  scene.form.show(ui::tileinfo);
  scene.form.moveTo(ui::tileinfo, 642, 347);
  takeInHand(scene, core::kInfoTool);
  say(scene, "INFO MODE SELECTED");
  scene.text(ui::Label4).assign("INFO MODE");
  scene.text(ui::buildcurrent).clear();
  scene.text(ui::buildprice).clear();
  // The footprint stays that of the tool last in hand, and presses are clamped for it.
  hideCursor(scene);
}

void resetPaletteAfterLoad(Scene& scene) {
  scene.form.moveTo(ui::tileinfo, 642, 347);
  takeInHand(scene, core::kInfoTool);
  scene.text(ui::Label4).assign("INFO MODE");
  scene.text(ui::buildcurrent).clear();
  scene.text(ui::buildprice).clear();
}

void showUnlockedTools(Scene& scene) {
  for (const core::Building& building : core::kBuildings) {
    if (building.unlocking.population == 0) continue;
    scene.form.setVisible(ui::Command1 + building.paletteKey(),
                          scene.game.toolUnlocked[building.unlocking.toolFlag] == 1);
  }
}

}  // namespace play
