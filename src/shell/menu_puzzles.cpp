#include "shell/menu_puzzles.h"

#include "core/missions.h"
#include "scenario/puzzles.h"
#include "shell/menu_start.h"

namespace shell {

namespace ui = menu_control;

void showPuzzles(MenuScreen& menu) {
  platform::Form& form = menu.form();
  for (int k = 0; k < 10; ++k) {
    const bool done = menu.values().puzzleDone[k + 1] == 1;
    form[ui::Picture10 + k].image = form[done ? ui::Picture20 : ui::Picture21].image;
  }
  menu.showPanel(ui::Frame15);
}

void clickPuzzlePlay(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(ui::startnew);
  showPuzzles(menu);
}

void hoverPuzzle(MenuScreen& menu, int row) {
  for (int k = 0; k < 10; ++k) {
    if (k != row) menu.form()[ui::Label20 + k].border = false;
  }
  bool& border = menu.form()[ui::Label20 + row].border;
  if (border) return;
  border = true;
  menu.cue(sound::kClick);
}

void clickPuzzle(MenuScreen& menu, int row) {
  core::ProgramValues& values = menu.values();
  menu.cue(sound::kClick);
  values.gMission = core::kFirstPuzzle + row;
  values.gYear = 1715;
  menu.form().hide(ui::Frame15);
  values.gMapSize = core::puzzle(values.gMission.whole()).mapSize;
  openNewGame(menu);
}

void cancelPuzzles(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(ui::Frame15);
  menu.showPanel(ui::startnew);
}

}  // namespace shell
