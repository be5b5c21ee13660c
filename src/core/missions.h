// The modes of play, and the missions and levels as tables: all that differs from one to another.
#pragma once

#include <array>
#include <string_view>

#include "platform/text.h"

namespace core {

// What gMission can be: missions 1 .. 10, these, and the levels between the last two. Plain numbers, as
// gMission is one.
inline constexpr int kFirstMission = 1;
inline constexpr int kLastMission = 10;
inline constexpr int kMissions = kLastMission;
inline constexpr int kCampaignWon = 11;  // a moment after the last mission, or in a game saved then
inline constexpr int kOpenPlay = 15;
inline constexpr int kDemonstration = 16;
inline constexpr int kFirstPuzzle = 20;
inline constexpr int kLastPuzzle = 29;

constexpr bool isPuzzle(double mode) {
  return mode >= kFirstPuzzle && mode <= kLastPuzzle;
}

enum class Backdrop { none, countryside, river, townWalls };

/// What a campaign mission requires, each at least; 0 for no requirement.
struct Goal {
  int people = 0;
  int food = 0;
  int gold = 0;
  int religion = 0;      // church rating
  int ratings = 0;       // all five of them
  bool noTents = false;  // all residences are apartments
};

/// What the king sends at each month roll.
struct KingsAid {
  int food = 0;
  int gold = 0;
  const char* news = nullptr;  // for the banner
};

/// What a mission that continues a city takes from it.
struct HandOver {
  int food = 0;
  int gold = 0;
  int year = 0;  // the calendar is set to it; 0: stays as the file has it
};

/// A month in which a disaster strikes; month 0 for none, year 0 for every year.
struct Strike {
  int month = 0;
  int year = 0;
};

struct Mission {
  const char* row;  // in the list of missions
  int mapSize;
  double fertility;
  const char *difficulty, *mapSizeText, *fertilityText;
  int startYear;
  int judgementYear;  // judged at the roll into it; 0 for never
  bool founds;        // a new city on new land, else that of the mission before is continued
  int gold;           // at the start of a founded city; 0 leaves that of the money choice
  HandOver handOver;
  KingsAid aid;
  Strike earthquake, theft;
  Backdrop backdrop;
  bool walls;  // town walls around the square
  Goal goal;
  std::string_view goalText;  // with its leading blank
};

/// Mission 1 .. 10.
const Mission& mission(int number);
/// The mission that a mode is; null for all other modes.
const Mission* missionOf(double mode);

struct Puzzle {
  const char* row;  // in the list of levels
  int mapSize;
  int gold;  // at the start
  enum class Kind { people, residences, gold } kind;
  int goal;
  std::string_view goalText;  // in the goal strip
};
inline constexpr int kPuzzles = kLastPuzzle - kFirstPuzzle + 1;

/// Gold is counted when the first year is over.
inline constexpr int kPuzzleGoldYear = 1716;

/// Level of the modes 20 .. 29.
const Puzzle& puzzle(int mode);

/// Start gold of the demonstration.
inline constexpr int kDemonstrationGold = 1000;
/// The year in which every mode but the later missions begins.
inline constexpr int kFirstYear = 1715;

/// Writes what the key "GOALS" shows in the given mode. A mode without such a text (the demonstration)
/// leaves `into` as it is.
void writeGoalNotice(platform::Text& into, int mode);

}  // namespace core
