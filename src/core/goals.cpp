#include "core/goals.h"

#include <array>

#include "core/number_text.h"

namespace core {

namespace {

constexpr std::array<std::string_view, 10> kMissionGoals{
    " 500 people and 1500 food in two years",
    " 1000 people, 2500 golds and religion rating > 75% in two years",
    " 1000 people,2000 food and 2000 golds in one year",
    " 1000 people in one year",
    " 1500 people and 6000 golds in two years",
    " 1750 people,1000 food and 1000 golds in two years",
    " 1000 people,all the residences are apartments and all ratings > 90 in two years",
    " 1250 people,all the residences are apartments and all ratings = 100 in two years",
    " 750 people in one year",
    " 1250 people",
};

constexpr std::array<std::string_view, 10> kPuzzleGoals{
    "Goal: 60 people",
    "Goal: Place 22 residences on the map",
    "Goal: 1600 golds in one year",
    "Goal: 200 people",
    "Goal: Place 23 residences on the map",
    "Goal: 1050 golds in one year",
    "Goal: 450 people",
    "Goal: 900 people",
    "Goal: Place 24 residences on the map",
    "Goal: 2000 golds in one year",
};

}  // namespace

std::string_view missionGoal(int mission) {
  if (mission < 1 || mission > 10) return {};
  return kMissionGoals[static_cast<std::size_t>(mission - 1)];
}

std::string_view puzzleGoal(int mission) {
  if (!isPuzzle(mission)) return {};
  return kPuzzleGoals[static_cast<std::size_t>(mission - kFirstPuzzle)];
}

void writeGoalNotice(platform::Text& into, int mission) {
  if (mission >= 1 && mission <= 10) {
    setCaption(into, " Mission ", mission, " :");
    into.append(missionGoal(mission));
  } else if (mission == kOpenPlay) {
    into = " Open play : There are no goals in open play mode";
  } else if (mission >= kFirstPuzzle) {
    into = " If you can't solve this puzzle, see the solution file.";
  }
}

}  // namespace core
