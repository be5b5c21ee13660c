// Saving and loading: the two panels, and the rebuilding of a city from its file.
#pragma once

#include "shell/game_screen.h"

namespace shell {

void clickSaveGame(GameScreen& screen);  // "SAVE GAME" of the game menu
void clickLoadGame(GameScreen& screen);  // "LOAD GAME" of the game menu
void clickSave(GameScreen& screen);      // "Save" of the save panel
void clickCancelSave(GameScreen& screen);
void clickLoad(GameScreen& screen);  // "Load" of the load panel: the first half of a load
void clickCancelLoad(GameScreen& screen);
/// The second half of a load: takes the checked record over.
void finishLoad(GameScreen& screen);

/// What a load and a hand-over share once the record's values are in the game: resets, timers of the
/// walkers, ground, roads, buildings, captions, palette.
void rebuildLoadedCity(GameScreen& screen);

/// Lists the saved games in a file list; nothing is selected then.
void refreshFileList(GameScreen& screen, int list);

/// Hides the panels around the map while a load is chosen or waits.
void hidePanelsForLoad(play::Scene& scene);
/// Draws the first coat, and puts the surface back to its resting place.
void drawFirstCoat(GameScreen& screen);
/// Writes month and year into the top bar.
void writeDate(play::Scene& scene);
/// Music as a game begins: all themes in turn.
void startAutoPlay(GameScreen& screen);

}  // namespace shell
