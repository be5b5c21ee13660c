#include "shell/leaving.h"

#include "core/number_text.h"
#include "shell/program.h"

namespace shell {

namespace {

namespace ui = play::ui;
namespace timer = play::timer;

void writePopulation(GameScreen& screen) {
  core::setCaption(screen.scene().text(ui::pop1), "Population:", screen.scene().game.population);
}

}  // namespace

void returnToMenu(GameScreen& screen) {
  screen.scene().media.closeTheme();
  screen.program().openMenu();
}

void leaveAfterVictory(GameScreen& screen) {
  writePopulation(screen);
  screen.timers().disable(timer::Timer9);
  screen.scene().values.gBackToMenu = 1;
  returnToMenu(screen);
}

void leaveLoadPanel(GameScreen& screen) {
  screen.timers().disable(timer::Timer10);
  screen.scene().stage.canvas.clear();
  returnToMenu(screen);
}

void leaveAfterDefeat(GameScreen& screen) {
  screen.timers().disable(timer::Timer11);
  returnToMenu(screen);
}

void leaveAfterPuzzle(GameScreen& screen) {
  writePopulation(screen);
  screen.timers().disable(timer::Timer15);
  returnToMenu(screen);
}

void quitGame(GameScreen& screen) {
  screen.scene().cue(sound::kClick);
  returnToMenu(screen);
}

void endDemonstration(GameScreen& screen) {
  screen.timers().disable(timer::Timer13);
  returnToMenu(screen);
}

}  // namespace shell
