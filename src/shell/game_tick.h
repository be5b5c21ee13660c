// The clock of the game: what happens once a second, and at the end of a month.
#pragma once

#include "shell/game_screen.h"

namespace shell {

void gameTick(GameScreen& screen);      // Timer2
void captionTick(GameScreen& screen);   // Timer1
void shakeTick(GameScreen& screen);     // Timer12
void roadLossTick(GameScreen& screen);  // Timer8

}  // namespace shell
