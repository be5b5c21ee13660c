// The row under the pointer lights up. Two mechanisms work at once: pointer moves colour the ground of
// the main panel's rows, and a timer that reads the pointer colours the text and sounds a cue.
#pragma once

#include "shell/menu_screen.h"

namespace shell {

/// The pointer moved over a control of the menu.
void moveOverMenu(MenuScreen& menu, int control);
/// One tick of the pointer timer.
void highlightTick(MenuScreen& menu);

}  // namespace shell
