// From the menu into a game: the panels of rows, open play, and the opening timers.
#pragma once

#include "shell/menu_screen.h"

namespace shell {

/// Shows the notice of loading and lets a new game open in half a second; mission, year and map size
/// have been set.
void openNewGame(MenuScreen& menu);

void clickNewGame(MenuScreen& menu);
void clickLoadGame(MenuScreen& menu);
void clickDemonstration(MenuScreen& menu);
void clickCredits(MenuScreen& menu);
void closeCredits(MenuScreen& menu);
void clickExit(MenuScreen& menu);
void clickBack(MenuScreen& menu);

void clickOpenPlay(MenuScreen& menu);
void clickChoice(MenuScreen& menu, int box);  // a check box of the open play panel
void cancelOpenPlay(MenuScreen& menu);
void startOpenPlay(MenuScreen& menu);

void noticeTick(MenuScreen& menu);     // Timer1
void newGameTick(MenuScreen& menu);    // Timer2
void missionTick(MenuScreen& menu);    // Timer3
void loadPanelTick(MenuScreen& menu);  // Timer4

}  // namespace shell
