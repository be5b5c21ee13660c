#include "core/missions.h"

#include "core/number_text.h"

namespace core {

namespace {

constexpr KingsAid kFoodAid{100, 0, "The king has sent you 100 units of food"};
constexpr KingsAid kFoodAndGoldAid{200, 150, "The king has sent you foods and golds"};

// clang-format off
constexpr std::array<Mission, kMissions> kTable{{
    {.row = " PART 1: All farmers dream",
     .mapSize = 18, .fertility = 1.2,
     .difficulty = "Difficulty: Easy", .mapSizeText = "Map size: Small", .fertilityText = "Land fertiliy: Good",
     .startYear = 1715, .judgementYear = 1717,
     .founds = true, .gold = 400, .handOver = {}, .aid = {}, .earthquake = {}, .theft = {},
     .backdrop = Backdrop::countryside, .walls = false,
     .goal = {.people = 500, .food = 1500},
     .goalText = " 500 people and 1500 food in two years"},

    {.row = "           Payback",
     .mapSize = 18, .fertility = 1.2,
     .difficulty = "Difficulty: Easy", .mapSizeText = "Map size: Small", .fertilityText = "Land fertiliy: Good",
     .startYear = 1717, .judgementYear = 1719,
     .founds = false, .gold = 0, .handOver = {.food = 1500, .year = 1717},
     .aid = {}, .earthquake = {}, .theft = {.month = 2, .year = 1718},
     .backdrop = Backdrop::countryside, .walls = false,
     .goal = {.people = 1000, .gold = 2500, .religion = 75},
     .goalText = " 1000 people, 2500 golds and religion rating > 75% in two years"},

    {.row = "           Power of nature",
     .mapSize = 18, .fertility = 1.2,
     .difficulty = "Difficulty: Easy", .mapSizeText = "Map size: Small", .fertilityText = "Land fertiliy: Good",
     .startYear = 1719, .judgementYear = 1720,
     .founds = false, .gold = 0, .handOver = {.gold = 2500, .year = 1719},
     .aid = {}, .earthquake = {.month = 3}, .theft = {},
     .backdrop = Backdrop::countryside, .walls = false,
     .goal = {.people = 1000, .food = 2000, .gold = 2000},
     .goalText = " 1000 people,2000 food and 2000 golds in one year"},

    {.row = " PART 2: City in the coast",
     .mapSize = 22, .fertility = 1,
     .difficulty = "Difficulty: Intermediate", .mapSizeText = "Map size: Medium", .fertilityText = "Land fertiliy: Normal ",
     .startYear = 1720, .judgementYear = 1721,
     .founds = true, .gold = 800, .handOver = {}, .aid = kFoodAid, .earthquake = {}, .theft = {},
     .backdrop = Backdrop::river, .walls = false,
     .goal = {.people = 1000},
     .goalText = " 1000 people in one year"},

    {.row = "           The golden harbor",
     .mapSize = 22, .fertility = 1,
     .difficulty = "Difficulty: Intermediate", .mapSizeText = "Map size: Medium", .fertilityText = "Land fertiliy: Normal",
     .startYear = 1721, .judgementYear = 1723,
     .founds = false, .gold = 0, .handOver = {.year = 1721},
     .aid = kFoodAid, .earthquake = {}, .theft = {},
     .backdrop = Backdrop::river, .walls = false,
     .goal = {.people = 1500, .gold = 6000},
     .goalText = " 1500 people and 6000 golds in two years"},

    {.row = "           Beyond new horizons",
     .mapSize = 22, .fertility = 1,
     .difficulty = "Difficulty: Intermediate", .mapSizeText = "Map size: Medium", .fertilityText = "Land fertiliy: Normal",
     .startYear = 1723, .judgementYear = 1725,
     .founds = false, .gold = 0, .handOver = {.gold = 6000, .year = 1723},
     .aid = {}, .earthquake = {}, .theft = {},
     .backdrop = Backdrop::river, .walls = false,
     .goal = {.people = 1750, .food = 1000, .gold = 1000},
     .goalText = " 1750 people,1000 food and 1000 golds in two years"},

    {.row = " PART 3: The noble city",
     .mapSize = 18, .fertility = 0.8,
     .difficulty = "Difficulty: Hard", .mapSizeText = "Map size: Small", .fertilityText = "Land fertiliy: Bad",
     .startYear = 1725, .judgementYear = 1727,
     .founds = true, .gold = 600, .handOver = {}, .aid = kFoodAndGoldAid, .earthquake = {}, .theft = {},
     .backdrop = Backdrop::none, .walls = false,
     .goal = {.people = 1000, .ratings = 90, .noTents = true},
     .goalText = " 1000 people,all the residences are apartments and all ratings > 90 in two years"},

    {.row = "           Way to the prosperity",
     .mapSize = 18, .fertility = 0.8,
     .difficulty = "Difficulty: Hard", .mapSizeText = "Map size: Small", .fertilityText = "Land fertiliy: Bad",
     .startYear = 1727, .judgementYear = 1729,
     .founds = false, .gold = 0, .handOver = {}, .aid = kFoodAndGoldAid, .earthquake = {}, .theft = {},
     .backdrop = Backdrop::none, .walls = false,
     .goal = {.people = 1250, .ratings = 100, .noTents = true},
     .goalText = " 1250 people,all the residences are apartments and all ratings = 100 in two years"},

    {.row = " PART 4: City in the castle",
     .mapSize = 12, .fertility = 0.8,
     .difficulty = "Difficulty: Very Hard", .mapSizeText = "Map size: Very Small", .fertilityText = "Land fertiliy: Bad",
     .startYear = 1729, .judgementYear = 1730,
     .founds = true, .gold = 0, .handOver = {}, .aid = {}, .earthquake = {}, .theft = {},
     .backdrop = Backdrop::townWalls, .walls = true,
     .goal = {.people = 750},
     .goalText = " 750 people in one year"},

    {.row = "           Mission impossible",
     .mapSize = 12, .fertility = 0.8,
     .difficulty = "Difficulty: Very Hard", .mapSizeText = "Map size: Very Small", .fertilityText = "Land fertiliy: Bad",
     .startYear = 1730, .judgementYear = 0,
     .founds = false, .gold = 0, .handOver = {}, .aid = {}, .earthquake = {}, .theft = {},
     .backdrop = Backdrop::townWalls, .walls = true,
     .goal = {.people = 1250},
     .goalText = " 1250 people"},
}};

using Kind = Puzzle::Kind;
constexpr std::array<Puzzle, kPuzzles> kPuzzleTable{{
    // row           side  gold   kind             goal
    {"Mission 1",      4,  2000,  Kind::people,      60, "Goal: 60 people"},
    {"Mission 2",     10,  2000,  Kind::residences,  22, "Goal: Place 22 residences on the map"},
    {"Mission 3",      8,   300,  Kind::gold,      1600, "Goal: 1600 golds in one year"},
    {"Mission 4",      6,  2000,  Kind::people,     200, "Goal: 200 people"},
    {"Mission 5",     10,  2000,  Kind::residences,  23, "Goal: Place 23 residences on the map"},
    {"Mission 6",      6,   300,  Kind::gold,      1050, "Goal: 1050 golds in one year"},
    {"Mission 7",      8,  2000,  Kind::people,     450, "Goal: 450 people"},
    {"Mission 8",     10,  2000,  Kind::people,     900, "Goal: 900 people"},
    {"Mission 9",     10,  2000,  Kind::residences,  24, "Goal: Place 24 residences on the map"},
    {" Mission 10",    8,   300,  Kind::gold,      2000, "Goal: 2000 golds in one year"},
}};
// clang-format on

}  // namespace

const Mission& mission(int number) {
  return kTable[number - kFirstMission];
}

const Mission* missionOf(double mode) {
  if (!(mode >= kFirstMission && mode <= kLastMission)) return nullptr;
  return &mission(static_cast<int>(mode));
}

const Puzzle& puzzle(int mode) {
  return kPuzzleTable[mode - kFirstPuzzle];
}

void writeGoalNotice(platform::Text& into, int mode) {
  if (const Mission* mission = missionOf(mode)) {
    setCaption(into, " Mission ", mode, " :");
    into.append(mission->goalText);
  } else if (mode == kOpenPlay) {
    into = " Open play : There are no goals in open play mode";
  } else if (mode >= kFirstPuzzle) {
    into = " If you can't solve this puzzle, see the solution file.";
  }
}

}  // namespace core
