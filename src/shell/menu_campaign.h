// The campaign's screens of the menu: the list of missions and the briefing.
#pragma once

#include "shell/menu_screen.h"

namespace shell {

void showMissions(MenuScreen& menu);           // "CAMPAIGN"
void hoverMission(MenuScreen& menu, int row);  // pointer over row 0..9
void leaveMissionRows(MenuScreen& menu);       // pointer beside the rows
void clickMission(MenuScreen& menu, int row);
void cancelMissions(MenuScreen& menu);
void cancelBriefing(MenuScreen& menu);
void playMission(MenuScreen& menu);  // "Play" of the briefing
/// The briefing that greets a player who has won a mission.
void showHomecoming(MenuScreen& menu);

}  // namespace shell
