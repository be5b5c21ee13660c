// The switch to 800 x 600 whenever the menu loads, and back when the player leaves.
#pragma once

namespace shell {

class Program;

/// Notes the display's size the first time, and requests 800 x 600. False when it is refused: the
/// player has seen a message, and the program has ended.
bool enterDisplayMode(Program& program);

/// Gives the display the size back that it had at the start, and ends the program.
void leaveDisplayMode(Program& program);

}  // namespace shell
