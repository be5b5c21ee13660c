// The campaign as tables: ten missions told as letters from a king.
#pragma once

#include <string_view>

#include "core/game_state.h"

namespace scenario {

inline constexpr int kMissions = 10;
/// The mission number behind the last one: the campaign is won.
inline constexpr int kCampaignWon = 11;

struct Mission {
  int number;       // 1..10
  const char* row;  // in the list of missions
  int mapSize;
  double fertility;
  int startYear;
  int judgementYear;  // 0: never judged
  const char* difficulty;
  const char* mapSizeText;
  const char* fertilityText;
};

/// Mission 1..10.
const Mission& mission(int number);

/// Which of the two sets a letter is taken from: the list of missions, or the return from a game.
enum class LetterSet { list, homecoming };

/// The letter of mission 1..10; 11 is the closing text.
std::string_view letter(int number, LetterSet set);
/// The goal as the briefing shows it; 11 is the closing line.
std::string_view briefingGoal(int number, LetterSet set);

/// What the mission that goes on takes from the city it takes over, and the year it starts in.
struct HandOver {
  double food;
  double gold;
  int year;  // 0: as the file has it
};
/// Whether mission 1..10 goes on with the city of the mission before.
bool goesOn(double number);
HandOver handOver(int number);

}  // namespace scenario
