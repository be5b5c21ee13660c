// The ways out of the game screen.
#pragma once

#include "shell/game_screen.h"

namespace shell {

/// Stops the music and opens the menu again; the game is over.
void returnToMenu(GameScreen& screen);

void leaveAfterVictory(GameScreen& screen);  // Timer9
void leaveLoadPanel(GameScreen& screen);     // Timer10
void leaveAfterDefeat(GameScreen& screen);   // Timer11
void leaveAfterPuzzle(GameScreen& screen);   // Timer15
void quitGame(GameScreen& screen);           // "QUIT GAME"
void endDemonstration(GameScreen& screen);   // its banner was clicked

}  // namespace shell
