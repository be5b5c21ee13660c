// The goals of the modes of play, and the words for them.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace core {

/// The values of gMission that name a mode.
inline constexpr int kOpenPlay = 15;
inline constexpr int kDemonstration = 16;
inline constexpr int kFirstPuzzle = 20;
inline constexpr int kLastPuzzle = 29;

constexpr bool isPuzzle(double mission) {
  return mission >= kFirstPuzzle && mission <= kLastPuzzle;
}

/// Goal of campaign mission 1..10 as the briefing gives it, with its leading blank; empty
/// otherwise.
std::string_view missionGoal(int mission);

/// Goal of a puzzle level, gMission 20..29, as the goal strip gives it; empty otherwise.
std::string_view puzzleGoal(int mission);

/// Writes what the button "GOALS" tells in the given mode. A mode without such a text (the
/// demonstration) leaves `into` as it is.
void writeGoalNotice(platform::Text& into, int mission);

}  // namespace core
