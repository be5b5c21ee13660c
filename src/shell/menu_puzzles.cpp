#include "shell/menu_puzzles.h"

#include "core/missions.h"
#include "scenario/puzzles.h"
#include "shell/menu_start.h"

namespace shell {

namespace ui = menu_control;

namespace {

constexpr int kPuzzleList = ui::Frame15;
constexpr int kRows = ui::Label20;
constexpr int kMarks = ui::Picture10;
constexpr int kSolved = ui::Picture20;
constexpr int kOpen = ui::Picture21;

}  // namespace

void showPuzzles(MenuScreen& menu) {
  platform::Form& form = menu.form();
  for (int k = 0; k < core::kPuzzles; ++k) {
    const bool done = menu.values().puzzleDone[k + 1] == 1;
    form[kMarks + k].image = form[done ? kSolved : kOpen].image;
  }
  menu.showPanel(kPuzzleList);
}

void clickPuzzlePlay(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(ui::startnew);
  showPuzzles(menu);
}

void hoverPuzzle(MenuScreen& menu, int row) {
  for (int k = 0; k < core::kPuzzles; ++k) {
    if (k != row) menu.form()[kRows + k].border = false;
  }
  bool& border = menu.form()[kRows + row].border;
  if (border) return;
  border = true;
  menu.cue(sound::kClick);
}

void clickPuzzle(MenuScreen& menu, int row) {
  core::ProgramValues& values = menu.values();
  menu.cue(sound::kClick);
  values.gMission = core::kFirstPuzzle + row;
  values.gYear = core::kFirstYear;
  menu.form().hide(kPuzzleList);
  values.gMapSize = core::puzzle(values.gMission.whole()).mapSize;
  openNewGame(menu);
}

void cancelPuzzles(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(kPuzzleList);
  menu.showPanel(ui::startnew);
}

}  // namespace shell
