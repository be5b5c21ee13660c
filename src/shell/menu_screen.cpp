#include "shell/menu_screen.h"

#include "core/missions.h"
#include "scenario/open_play.h"
#include "scenario/puzzles.h"
#include "shell/display_mode.h"
#include "shell/menu_campaign.h"
#include "shell/menu_puzzles.h"
#include "shell/program.h"

namespace shell {

namespace ui = menu_control;

MenuScreen::MenuScreen(Program& program)
    : Screen(menuControls(), kMenuBackground, menu_timer::kTimers, program.services().assets.images,
             program.services().clock),
      program_(program) {
  for (int k = 0; k < core::kMissions; ++k) {
    text(ui::Label6 + k).assign(core::mission(k + 1).row);
  }
  for (int k = 0; k < core::kPuzzles; ++k) {
    text(ui::Label20 + k).assign(core::puzzle(core::kFirstPuzzle + k).row);
  }
  for (const int box : {ui::Check1, ui::Check5, ui::Check8}) form()[box].checked = true;
}

core::ProgramValues& MenuScreen::values() {
  return program_.values();
}

void MenuScreen::cue(sound::Cue cue) {
  program_.media().playCue(cue);
}

void MenuScreen::showPanel(int panel) {
  form().centre(panel);
  form().show(panel);
  program_.turnPage();
}

double MenuScreen::reachedMission() {
  return values().gMission;
}

namespace {

/// Reads "config.dat". If it is missing or damaged the player starts afresh, with a notice.
void readProgress(MenuScreen& menu) {
  std::string notice;
  const store::Progress progress = menu.program().progress().read(notice);
  if (!notice.empty()) menu.program().desk().showBox("Vellmoran", notice);
  menu.values().gMission = progress.reachedMission;
  menu.values().gReservedNumber = progress.reservedNumber;
  menu.values().puzzleDone = progress.puzzleDone;
}

}  // namespace

void MenuScreen::load() {
  core::ProgramValues& v = values();
  form().centre(ui::main);
  scenario::setOpenPlayDefaults(v);
  v.gLoadPending = 0;
  v.gMission = core::kOpenPlay;
  form().hide(ui::lblloading);
  v.gSoundOn = 1;
  if (!enterDisplayMode(program_)) return;
  readProgress(*this);
  if (v.gBackToMenu == 1) {
    showHomecoming(*this);
  } else if (v.gReturnPuzzle == 1) {
    showPuzzles(*this);
    v.gReturnPuzzle = 0;
  } else {
    showPanel(ui::main);
  }
}

}  // namespace shell
