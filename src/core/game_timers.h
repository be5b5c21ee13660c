// The timers of the game screen. They and the clicks are all the control flow that a game has:
// shell/game_handlers.cpp lists the handler of each.
#pragma once

#include <array>

#include "platform/timers.h"

namespace core::game_timer {

/// Rows of kTimers. Timers that fall due together tick in this order.
enum Id : int {
  Timer1,    // gold and food captions
  Timer2,    // the game tick
  Timer3,    // second half of a load
  Timer4,    // the banner
  Timer5,    // pointer: edge scrolling, cursor, hover
  Timer6,    // walkers' steps
  Timer7,    // new walkers
  Timer8,    // buildings that lost their road
  Timer9,    // back to the menu, mission won
  Timer10,   // back to the menu, load cancelled
  Timer11,   // back to the menu, mission lost
  Timer12,   // the earthquake's shake
  Timer13,   // the demonstration's script
  Timer14,   // puzzle goal
  Timer15,   // back to the menu, puzzle ended
  Timer100,  // music
};

inline constexpr std::array<platform::TimerDesign, 16> kTimers{{
    {"Timer1", 200, true},
    {"Timer2", 1000, true},
    {"Timer3", 500, false},
    {"Timer4", 250, false},
    {"Timer5", 25, true},
    {"Timer6", 150, false},
    {"Timer7", 3000, true},
    {"Timer8", 7500, false},
    {"Timer9", 1000, false},
    {"Timer10", 500, false},
    {"Timer11", 1000, false},
    {"Timer12", 30, false},
    {"Timer13", 1000, false},
    {"Timer14", 1000, false},
    {"Timer15", 1000, false},
    {"Timer100", 1000, false},
}};

}  // namespace core::game_timer
