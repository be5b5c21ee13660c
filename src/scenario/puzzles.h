// Puzzle play: ten small levels with one goal each, the values 20 to 29 of gMission.
#pragma once

#include "play/scene.h"
#include "store/progress_keeper.h"

namespace scenario {

struct Puzzle {
  const char* row;  // in the list of levels
  int mapSize;
  double gold;  // at the start
  enum class Kind { people, residences, gold } kind;
  double goal;
};

/// Level of gMission 20..29.
const Puzzle& puzzle(int mission);

/// Writes the goal of the running level into the goal strip.
void writePuzzleGoal(play::Scene& scene);

/// One second of a level: keeps the goal strip, and ends the level when it is solved or lost.
void puzzleTick(play::Scene& scene, store::ProgressKeeper& progress);

}  // namespace scenario
