// The opening of the game screen.
#pragma once

#include "shell/game_screen.h"

namespace shell {

/// The whole opening, in its order. False when the city of the mission before could not be taken over.
bool openGameScreen(GameScreen& screen);

/// Takes over the city of the mission before, for the missions that go on. False, with a message box,
/// when its file cannot be read; nothing has changed then.
bool continueCity(GameScreen& screen);
/// Begins a new game, if one is requested.
void startNewGame(GameScreen& screen);
/// Waits on the load panel, if the menu asked for it.
void prepareLoadScreen(GameScreen& screen);

}  // namespace shell
