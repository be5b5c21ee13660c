// What becomes of an open city when the window or the page goes: nothing is lost.
#pragma once

namespace shell {

class Program;

inline constexpr const char* kUnsavedCity = "unsaved city.sav";

/// Keeps the city that is open as a saved game of that name, in place of an earlier one. There is none to
/// keep in the menu, under the load panel that the menu opens, and in the demonstration. Returns whether a
/// city was kept. To be called by whoever ends the program in the middle of a game; the player's own ways
/// out of a game keep nothing.
bool keepUnsavedCity(Program& program);

}  // namespace shell
