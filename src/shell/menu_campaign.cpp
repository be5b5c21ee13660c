#include "shell/menu_campaign.h"

#include "core/missions.h"
#include "core/number_text.h"
#include "scenario/letters.h"
#include "shell/program.h"

namespace shell {

namespace ui = menu_control;
namespace timer = menu_timer;
using scenario::LetterSet;

namespace {

constexpr int kRows = ui::Label6;
constexpr int kBriefing = ui::Framecpgn;
constexpr int kBriefingTitle = ui::Frame1;
constexpr int kClosedNotice = ui::command7;

void writeStatus(MenuScreen& menu, int mission) {
  menu.text(ui::statuslbl)
      .assign(menu.reachedMission() > mission ? "Status: COMPLETED" : "Status: NOT COMPLETED");
}

bool isClosed(MenuScreen& menu, int row) {
  return row >= 1 && menu.reachedMission() < row + 1;
}

void clearRowBorders(MenuScreen& menu) {
  for (int k = 0; k < core::kMissions; ++k) menu.form()[kRows + k].border = false;
}

/// Shows the list of missions, a lock beside those that are still closed.
void showList(MenuScreen& menu) {
  const platform::Surface* lock = menu.program().services().assets.images.find(kLockImage);
  for (int k = 0; k < core::kMissions; ++k) {
    menu.form()[kRows + k].image = isClosed(menu, k) ? lock : nullptr;
  }
  menu.showPanel(ui::campaign);
}

void writeBriefing(MenuScreen& menu, int mission, LetterSet set) {
  if (mission == core::kCampaignWon) {
    menu.text(kBriefingTitle).assign("CONGRATULATIONS");
  } else {
    core::setCaption(menu.text(kBriefingTitle), "MISSION ", mission);
  }
  menu.text(ui::cpgninfo).assign(scenario::letter(mission, set));
  menu.text(ui::goalinfo).assign(scenario::briefingGoal(mission, set));
}

}  // namespace

void showMissions(MenuScreen& menu) {
  menu.cue(sound::kClick);
  writeStatus(menu, 1);
  menu.form().hide(ui::startnew);
  showList(menu);
}

void hoverMission(MenuScreen& menu, int row) {
  clearRowBorders(menu);
  menu.form()[kRows + row].border = true;
  const core::Mission& mission = core::mission(row + 1);
  menu.text(ui::difflbl).assign(mission.difficulty);
  menu.text(ui::mapsizelbl).assign(mission.mapSizeText);
  menu.text(ui::fertilelbl).assign(mission.fertilityText);
  writeStatus(menu, row + 1);
}

void leaveMissionRows(MenuScreen& menu) {
  clearRowBorders(menu);
  menu.text(ui::difflbl).assign("Difficulty: ");
  menu.text(ui::mapsizelbl).assign("Map size: ");
  menu.text(ui::fertilelbl).assign("Land fertiliy: ");
  menu.text(ui::statuslbl).assign(menu.reachedMission() > 1 ? "Status:" : "Status: ");
}

void clickMission(MenuScreen& menu, int row) {
  menu.cue(sound::kClick);
  menu.values().selectedMission = row;
  menu.form().hide(kClosedNotice);
  if (isClosed(menu, row)) {
    menu.form().show(kClosedNotice);
    menu.timers().enable(timer::Timer1);
    return;
  }
  writeBriefing(menu, row + 1, LetterSet::list);
  menu.form().hide(ui::campaign);
  menu.showPanel(kBriefing);
}

void cancelMissions(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(kClosedNotice);
  menu.form().hide(ui::campaign);
  menu.showPanel(ui::startnew);
}

void cancelBriefing(MenuScreen& menu) {
  menu.cue(sound::kClick);
  menu.form().hide(kBriefing);
  showList(menu);
}

void playMission(MenuScreen& menu) {
  core::ProgramValues& values = menu.values();
  menu.cue(sound::kClick);
  if (values.selectedMission >= core::kMissions) return;  // the closing text
  const core::Mission& mission = core::mission(values.selectedMission + 1);
  values.gMapSize = mission.mapSize;
  values.gFertility = mission.fertility;
  values.gMission = values.selectedMission + 1;
  values.gYear = mission.startYear;
  menu.form().hide(kBriefing);
  menu.showPanel(ui::lblloading);
  menu.timers().enable(timer::Timer3);
  values.gContinueMission = 1;
  values.gNewMap = 0;
  values.gLoadPending = 0;
}

void showHomecoming(MenuScreen& menu) {
  core::ProgramValues& values = menu.values();
  values.selectedMission = values.gMission.whole() - 1;
  // After an earlier mission was played again the main panel is behind the briefing.
  if (values.gReplayedMission == 1) menu.showPanel(ui::main);
  writeBriefing(menu, values.selectedMission + 1, LetterSet::homecoming);
  menu.form().hide(ui::campaign);
  menu.showPanel(kBriefing);
  values.gBackToMenu = 0;
}

}  // namespace shell
