// The list of puzzle levels.
#pragma once

#include "shell/menu_screen.h"

namespace shell {

/// Sets the marks and shows the list.
void showPuzzles(MenuScreen& menu);
void clickPuzzlePlay(MenuScreen& menu);       // "PUZZLE PLAY"
void hoverPuzzle(MenuScreen& menu, int row);  // pointer over row 0..9
void clickPuzzle(MenuScreen& menu, int row);
void cancelPuzzles(MenuScreen& menu);

}  // namespace shell
