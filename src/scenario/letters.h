// The king's letters of the campaign.
#pragma once

#include <string_view>

namespace scenario {

/// Which of the two sets a letter is taken from: the list of missions, or the return from a game.
enum class LetterSet { list, homecoming };

/// The letter of mission 1..10; 11 is the closing text.
std::string_view letter(int number, LetterSet set);
/// The goal as the briefing shows it; 11 is the closing line.
std::string_view briefingGoal(int number, LetterSet set);

}  // namespace scenario
