#include "scenario/demonstration.h"

#include <array>

#include "play/press.h"

namespace scenario {

namespace {

/// Steps first .. last use a tool on a row of cells, one cell a step.
struct Run {
  int first;
  int last;
  int tool;
  int x, y;    // cell of the first step
  int dx, dy;  // from one step to the next
};

// clang-format off
constexpr std::array<Run, 25> kScript{{
    //  steps     tool  cell      step
    {   1,  10,   8,    18, 10,    0, 1},  // roads
    {  11,  14,   1,    19, 11,    0, 2},  // residences
    {  15,  19,   8,    19, 10,    1, 0},
    {  20,  24,   8,    19, 19,    1, 0},
    {  25,  32,   8,    23, 11,    0, 1},
    {  33,  36,   1,    21, 11,    0, 2},
    {  37,  39,   9,    14,  1,    3, 0},  // farms
    {  40,  40,   2,    16, 13,    0, 0},  // market
    {  41,  49,   8,    15, 10,    0, 1},
    {  50,  53,   1,    13, 11,    0, 2},
    {  54,  59,   8,    15, 19,   -1, 0},
    {  60,  64,   8,    14, 10,   -1, 0},
    {  65,  72,   8,    10, 11,    0, 1},
    {  74,  74,   5,    16, 15,    0, 0},  // church
    {  76,  79,   1,    11, 11,    0, 2},
    {  80,  80,   3,    16, 11,    0, 0},  // school
    {  81,  82,   9,    14,  4,    3, 0},
    {  83,  84,   8,    16, 19,    1, 0},
    {  85,  86,   8,    16, 10,    1, 0},
    {  87,  91,   1,    12, 20,    2, 0},
    {  92,  96,   1,    12,  8,    2, 0},
    {  97,  97,   6,    24, 13,    0, 0},  // doctors
    { 100, 100,   6,     9, 15,    0, 0},
    { 103, 103,   3,    16, 17,    0, 0},
    { 105, 105,   9,    20,  4,    0, 0},
}};
// clang-format on

constexpr int kEndNotice = 115;
constexpr int kEnd = 135;
constexpr int kTicksPerMonth = 25;

void runStep(play::Scene& scene, const Run& run) {
  core::GameState& game = scene.game;
  const int n = game.demoStep - run.first;
  const core::Cell cell{run.x + n * run.dx, run.y + n * run.dy};
  game.demoTool = run.tool;
  game.cellX = cell.x;
  game.cellY = cell.y;
  play::useTool(scene, run.tool, cell, play::User::demonstration);
}

}  // namespace

bool demonstrationTick(play::Scene& scene) {
  core::GameState& game = scene.game;
  game.demoStep += 1;
  // No notice of the simulation stays up, and the script's buildings make no sound.
  if (scene.form[play::ui::bilgi].visible) scene.form.hide(play::ui::bilgi);
  scene.values.gSoundOn = 0;
  if (game.ticksPerMonth != kTicksPerMonth) game.ticksPerMonth = kTicksPerMonth;
  for (const Run& run : kScript) {
    if (game.demoStep >= run.first && game.demoStep <= run.last) runStep(scene, run);
  }
  if (game.demoStep == kEndNotice) play::say(scene, "End of demonstration");
  return game.demoStep == kEnd;
}

}  // namespace scenario
