#include "shell/game_tick.h"

#include <cmath>

#include "core/buildings.h"
#include "core/missions.h"
#include "core/number_text.h"
#include "play/press.h"
#include "play/scrolling.h"
#include "play/status_report.h"
#include "scenario/campaign.h"
#include "shell/program.h"
#include "shell/saved_games.h"
#include "sim/calendar.h"
#include "sim/disasters.h"
#include "sim/food.h"
#include "sim/history.h"
#include "sim/population.h"
#include "sim/rebuild.h"
#include "sim/treasury.h"

namespace shell {

namespace {

namespace ui = play::ui;
namespace timer = play::timer;
using play::Scene;

void testMilestones(Scene& scene) {
  for (const int service : sim::kMilestones) {
    if (!sim::reachMilestone(scene.game, service)) continue;
    const core::Building& building = core::buildingOfService(service);
    scene.form.show(ui::Command1 + building.paletteKey());
    core::writeUnlockNotice(scene.text(ui::bilgilabel), building);
    play::showNotice(scene);
  }
}

void stepFamine(Scene& scene) {
  core::GameState& game = scene.game;
  const sim::FamineStep step = sim::stepFamine(game);
  if (step.banner) play::say(scene, "Famine started,people leave your city!");
  if (!step.rebuild) return;
  sim::rebuildCity(game, {});
  if (game.overlayView != 0) return;
  play::redraw(scene);
  map::unmarkCells(game, 0, core::kLastCell);
}

void startEarthquake(Scene& scene) {
  sim::beginEarthquake(scene.game, scene.game);
  scene.timers.enable(timer::Timer12);
  play::say(scene, "EARTHQUAKE!!!");
}

void commitTheft(Scene& scene) {
  core::setCaption(scene.text(ui::bilgilabel), "Theft! ", sim::steal(scene.game),
                   " golds are stolen from your treasury.");
  play::showNotice(scene);
}

void rollMonth(GameScreen& screen) {
  Scene& scene = screen.scene();
  core::GameState& game = scene.game;
  core::ProgramValues& values = scene.values;
  sim::beginMonth(game, values);
  writeDate(scene);
  sim::harvest(game, values);
  if (const char* news = sim::kingsAid(game, values)) play::say(scene, news);
  sim::consume(game);
  if (sim::foodIsLow(game)) play::say(scene, "Your food supply is low");
  stepFamine(scene);
  if (sim::earthquakeDue(game, values)) startEarthquake(scene);
  if (sim::theftDue(game, values)) commitTheft(scene);
  if (values.gMission != core::kOpenPlay)
    scenario::checkMissionEnd(scene, screen.program().progress());
}

void reportEarthquake(Scene& scene) {
  core::GameState& game = scene.game;
  // A plain difference: people who arrived during the shake count against the dead.
  core::setCaption(scene.text(ui::bilgilabel),
                   "Disaster!A terrible earthquake hit your settlement,many buildings are "
                   "collapsed and ",
                   game.populationBeforeQuake - game.population, " people died.");
  play::showNotice(scene);
  game.quakeReportPending = 0;
}

void setCaptionIfChanged(platform::Text& text, std::string_view before, double number) {
  platform::Text wanted;
  core::setCaption(wanted, before, number);
  if (!(text == wanted)) text = wanted;
}

}  // namespace

void gameTick(GameScreen& screen) {
  Scene& scene = screen.scene();
  core::GameState& game = scene.game;
  core::ProgramValues& values = scene.values;
  sim::wrapHistory(game);
  core::setCaption(scene.text(ui::pop1), "Population:", game.population);
  if (values.gMission != core::kDemonstration) testMilestones(scene);
  sim::movePopulation(game);
  if (game.farmAnimationOn == 1 && sim::growFarms(game) && game.overlayView == 0) {
    play::redraw(scene);
  }
  if (game.tickOfMonth >= game.monthLength) rollMonth(screen);
  sim::moveMoney(game);
  sim::writeHistory(game, values);
  if (scene.form[ui::statusframe].visible) play::fillStatusReport(scene);
  sim::rateServices(game, game);
  game.tickOfMonth += 1;
  if (game.quakeReportPending == 1) reportEarthquake(scene);
  if (values.gMission == core::kLastMission && scenario::missionGoalMet(game, core::kLastMission)) {
    values.gMission = core::kCampaignWon;
    scenario::checkMissionEnd(scene, screen.program().progress());
  }
}

void captionTick(GameScreen& screen) {
  Scene& scene = screen.scene();
  setCaptionIfChanged(scene.text(ui::para1), "Gold:", std::floor(scene.game.gold));
  setCaptionIfChanged(scene.text(ui::FoodS), "Food:", std::floor(scene.game.food));
  scene.game.blitCount = 0;
}

void shakeTick(GameScreen& screen) {
  Scene& scene = screen.scene();
  core::GameState& game = scene.game;
  const bool over = sim::shake(game);
  play::placeMap(scene);
  if (!over) return;
  sim::collapse(game, screen.random());
  sim::rebuildCity(game, {.flood = true});
  map::markCells(game, 0, core::kLastCell);
  play::redraw(scene, map::DrawTiles3);
  map::unmarkCells(game, 0, core::kLastCell);
  sim::endEarthquake(game);
  scene.timers.disable(timer::Timer12);
}

void roadLossTick(GameScreen& screen) {
  Scene& scene = screen.scene();
  core::GameState& game = scene.game;
  sim::removeBuildingsWithoutRoad(game);
  sim::rebuildCity(game, {.evolve = false});
  if (game.overlayView == 0) play::redraw(scene);
  scene.timers.disable(timer::Timer8);
}

}  // namespace shell
