#include "shell/game_screen.h"

#include "play/tooltips.h"
#include "shell/opening.h"
#include "shell/program.h"

namespace shell {

GameScreen::GameScreen(Program& program)
    : Screen(play::gameControls(), nullptr, core::game_timer::kTimers,
             program.services().assets.images, program.services().clock),
      program_(program),
      game_(std::make_unique<core::GameState>()),
      stage_{*game_, program.values(), program.services().assets.pictures, program.canvas()},
      scene_{*game_, program.values(), form(), timers(), stage_, program.desk(), program.media()} {
  play::writeTooltips(form());
  form()[play::ui::picScroll].canvas = &stage_.canvas;
  stage_.canvas.clear();
  platform::ListContent& music = *form()[play::ui::Combo1].list;
  for (const char* entry : sound::kMusicChoices) music.items.emplace_back(entry);
}

bool GameScreen::load() {
  return openGameScreen(*this);
}

const std::string& GameScreen::folder() const {
  return program_.services().programFolder;
}
bool GameScreen::readBackdrop(double mode, std::string& error) {
  return program_.services().assets.readBackdrop(mode, error);
}
platform::Random& GameScreen::random() {
  return program_.services().random;
}
platform::Random& GameScreen::walkerRandom() {
  return program_.services().walkerRandom;
}

}  // namespace shell
