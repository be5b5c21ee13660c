#include "play/panels.h"

#include "core/missions.h"
#include "core/number_text.h"
#include "map/views.h"
#include "play/palette.h"
#include "play/press.h"
#include "sim/rebuild.h"

namespace play {

namespace {

constexpr int kLegend = ui::Frame13;
constexpr int kGoalStrip = ui::Frame21;

void changeTax(Scene& scene, double rate) {
  core::GameState& game = scene.game;
  game.taxRate = rate;
  core::setCaption(scene.text(ui::showtaxrate), "", game.taxRate);
  sim::rebuildCity(game, {});
  if (game.overlayView == 0) {
    redraw(scene);
    map::unmarkCells(game, 0, core::kLastCell);
  }
}

}  // namespace

void showGoal(Scene& scene) {
  scene.cue(sound::kClick);
  core::writeGoalNotice(scene.text(ui::bilgilabel), scene.values.gMission.whole());
  showNotice(scene);
}

void chooseView(Scene& scene, int view) {
  platform::Form& form = scene.form;
  scene.cue(sound::kClick);
  scene.game.overlayView = view;
  map::applyOverlayView(scene.stage);
  scene.text(ui::currentview).assign(map::viewName(view));
  holdKeys(scene);
  if (view != 0 && !form[ui::statusframe].visible) {
    showLegend(scene);
  }
  if (view != 0 && form[kGoalStrip].visible) form.hide(kGoalStrip);
  if (view == 0 && !form[kGoalStrip].visible && scene.values.gMission >= core::kFirstPuzzle) {
    form.show(kGoalStrip);
  }
  if (view == 0) form.hide(kLegend);
}

void showLegend(Scene& scene) {
  scene.form.moveTo(kLegend, 100, 520);
  scene.form.show(kLegend);
}

void raiseTax(Scene& scene) {
  const double rate = scene.game.taxRate + 5;
  changeTax(scene, rate >= 35 ? 30 : rate);
}

void lowerTax(Scene& scene) {
  const double rate = scene.game.taxRate - 5;
  changeTax(scene, rate <= -5 ? 0 : rate);
}

void showGameMenu(Scene& scene) {
  scene.form.moveTo(ui::gamemenu, 250, 210);
  scene.form.show(ui::gamemenu);
}

}  // namespace play
