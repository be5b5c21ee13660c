#include "play/palette.h"

#include "core/vocabulary.h"
#include "sim/month_tick.h"

namespace play {

namespace {

void takeInHand(Scene& scene, int tool) {
  scene.game.currentTool = tool;
  markToolInHand(scene);
}

}  // namespace

void markToolInHand(Scene& scene) {
  const int tool = scene.game.currentTool.whole();
  scene.form[ui::Image6].heldKey =
      tool == core::kInfoTool ? platform::Rect{} : core::paletteKey(tool - 1);
}

void selectTool(Scene& scene, int index) {
  const int tool = index + 1;
  const core::ToolDesign& design = core::toolDesign(tool);
  scene.cue(sound::kTool);
  takeInHand(scene, tool);
  scene.text(ui::buildcurrent).assign(design.current);
  scene.text(ui::buildprice).assign(design.priceText);
  scene.game.cursorFootprint = design.footprint;
  scene.game.lastPaletteTool = tool;
}

void enterBuildMode(Scene& scene) {
  scene.cue(sound::kClick);
  scene.form.hide(ui::tileinfo);
  scene.form.show(ui::Frame1);
  scene.text(ui::Label4).assign("BUILD MODE");
  scene.text(ui::namlbl).clear();
  say(scene, "BUILD MODE SELECTED");
  takeInHand(scene, core::kRoadTool);
  scene.text(ui::buildcurrent).assign("Current:Road");
  scene.text(ui::buildsize).assign("Effect area:  ");
  scene.text(ui::buildprice).assign("Price:5");
  scene.game.cursorFootprint = 1;
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
  for (int n = 0; n < sim::kMilestones; ++n) {
    const sim::Milestone& milestone = sim::milestone(n);
    scene.form.setVisible(ui::Command1 + milestone.paletteIndex,
                          scene.game.toolUnlocked[milestone.toolFlag] == 1);
  }
}

}  // namespace play
