#include "shell/menu_start.h"

#include "core/missions.h"
#include "core/number_text.h"
#include "scenario/open_play.h"
#include "shell/display_mode.h"
#include "shell/program.h"

namespace shell {

namespace ui = menu_control;
namespace timer = menu_timer;

namespace {

constexpr int kCredits = ui::Frame10;

/// Check boxes by the number in their names.
constexpr int kBoxes[] = {ui::Check1, ui::Check2, ui::Check3, ui::Check4, ui::Check5,
                          ui::Check6, ui::Check7, ui::Check8, ui::Check9};

}  // namespace

void openNewGame(MenuScreen& menu) {
  core::ProgramValues& values = menu.values();
  menu.showPanel(ui::lblloading);
  menu.timers().enable(timer::Timer2);
  values.gContinueMission = 0;
  values.gNewMap = 1;
  values.gBackToMenu = 0;
  values.gLoadPending = 0;
}

void clickNewGame(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(ui::main);
  menu.showPanel(ui::startnew);
}

void clickLoadGame(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(ui::main);
  menu.timers().enable(timer::Timer4);
  menu.values().gMission = core::kOpenPlay;
  menu.showPanel(ui::lblloading);
}

void clickDemonstration(MenuScreen& menu) {
  core::ProgramValues& values = menu.values();
  menu.cue(sound::kClick);
  menu.form().hide(ui::main);
  values.gMapSize = 28;
  values.gFertility = 1.2;
  values.gMission = core::kDemonstration;
  values.gYear = core::kFirstYear;
  openNewGame(menu);
}

void clickCredits(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(ui::main);
  menu.showPanel(kCredits);
}

void closeCredits(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(kCredits);
  menu.showPanel(ui::main);
}

void clickExit(MenuScreen& menu) {
  menu.cue(sound::kClick);
  std::string error;
  if (!menu.program().progress().writeKept(error) && !menu.exitWarned) {
    menu.exitWarned = true;
    menu.program().desk().showBox(
        "Error",
        error +
            ".\nYour progress is not saved yet. EXIT GAME tries once more, and then leaves in "
            "any case.");
    return;
  }
  leaveDisplayMode(menu.program());
}

void clickBack(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(ui::startnew);
  menu.showPanel(ui::main);
}

void clickOpenPlay(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(ui::startnew);
  menu.showPanel(ui::openplay);
}

void clickChoice(MenuScreen& menu, int box) {
  platform::Form& form = menu.form();
  int chosen = 0;
  while (kBoxes[chosen] != box) ++chosen;
  // A click on the checked box leaves its group with none checked, and the last choice in force.
  if (!form[box].checked) return;
  scenario::takeChoice(menu.values(), chosen);
  core::setCaption(menu.text(ui::openplaydiff),
                   "Overall difficulty:", menu.values().gOpenDifficulty, "%");
  const int group = chosen / 3 * 3;
  for (int n = group; n < group + 3; ++n) {
    if (n != chosen) form[kBoxes[n]].checked = false;
  }
}

void cancelOpenPlay(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(ui::openplay);
  menu.showPanel(ui::startnew);
}

void startOpenPlay(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.values().gMission = core::kOpenPlay;
  menu.values().gYear = core::kFirstYear;
  menu.form().hide(ui::openplay);
  openNewGame(menu);
}

void noticeTick(MenuScreen& menu) {
  menu.timers().disable(timer::Timer1);
  menu.form().hide(ui::command7);
}

// The flags set behind an opening stay after the game screen has used them; every start sets them again.
void newGameTick(MenuScreen& menu) {
  menu.program().openGame();
  menu.values().gNewMap = 1;
}

void missionTick(MenuScreen& menu) {
  menu.program().openGame();
  menu.values().gContinueMission = 1;
}

void loadPanelTick(MenuScreen& menu) {
  menu.timers().disable(timer::Timer4);
  menu.values().gLoadPending = 1;
  menu.program().openGame();
}

}  // namespace shell
