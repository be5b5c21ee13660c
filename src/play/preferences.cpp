#include "play/preferences.h"

#include "core/vocabulary.h"
#include "map/walkers.h"
#include "play/press.h"

namespace play {

namespace {

void writeSwitch(Scene& scene, int control, bool on) {
  scene.text(control).assign(on ? "On" : "Off");
}

void setSpeed(Scene& scene, int ticks) {
  scene.game.ticksPerMonth = ticks;
  writeSpeed(scene);
}

}  // namespace

void writeSpeed(Scene& scene) {
  if (scene.game.ticksPerMonth == kFast) scene.text(ui::gamespeed).assign("Fast");
  if (scene.game.ticksPerMonth == kNormal) scene.text(ui::gamespeed).assign("Normal");
  if (scene.game.ticksPerMonth == kSlow) scene.text(ui::gamespeed).assign("Slow");
}

void openPreferences(Scene& scene) {
  core::GameState& game = scene.game;
  scene.cue(sound::kClick);
  scene.form.moveTo(ui::showpref, 200, 200);
  scene.form.show(ui::showpref);
  if (game.ticksPerMonth != kFast && game.ticksPerMonth != kNormal && game.ticksPerMonth != kSlow) {
    game.ticksPerMonth = kNormal;
  }
  writeSpeed(scene);
  writeSwitch(scene, ui::scrollspeedminus, scene.values.gSoundOn == 1);
  writeSwitch(scene, ui::zoomminus, game.farmAnimationOn == 1);
  writeSwitch(scene, ui::spriteonoff, game.walkersOn == 1);
}

void speedUp(Scene& scene) {
  if (scene.game.ticksPerMonth == kNormal) {
    setSpeed(scene, kFast);
  } else if (scene.game.ticksPerMonth == kSlow) {
    setSpeed(scene, kNormal);
  }
}

void slowDown(Scene& scene) {
  if (scene.game.ticksPerMonth == kNormal) {
    setSpeed(scene, kSlow);
  } else if (scene.game.ticksPerMonth == kFast) {
    setSpeed(scene, kNormal);
  }
}

void toggleSound(Scene& scene) {
  scene.values.gSoundOn = scene.values.gSoundOn == 1 ? 0 : 1;
  writeSwitch(scene, ui::scrollspeedminus, scene.values.gSoundOn == 1);
}

void toggleFarmAnimation(Scene& scene) {
  core::GameState& game = scene.game;
  if (game.farmAnimationOn != 1) {
    game.farmAnimationOn = 1;
    writeSwitch(scene, ui::zoomminus, true);
    return;
  }
  game.farmAnimationOn = 0;
  writeSwitch(scene, ui::zoomminus, false);
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      std::int16_t& image = game.tileImage(x, y);
      if (image != core::kFarmImage2 && image != core::kFarmImage3) continue;
      image = core::kFarmImage1;
      game.cellDirty(x, y) = 1;
    }
  }
  redraw(scene);
  map::unmarkCells(game, 0, core::kLastCell + 1);
}

void toggleWalkers(Scene& scene) {
  core::GameState& game = scene.game;
  if (game.walkersOn != 1) {
    game.walkersOn = 1;
    writeSwitch(scene, ui::spriteonoff, true);
    scene.timers.enable(timer::Timer6);
    scene.timers.enable(timer::Timer7);
    return;
  }
  game.walkersOn = 0;
  writeSwitch(scene, ui::spriteonoff, false);
  scene.timers.disable(timer::Timer7);
  scene.timers.disable(timer::Timer6);
  map::removeWalkers(scene.stage);
  scene.stage.canvas.refresh();
}

}  // namespace play
