#include "play/hover.h"

#include <array>

namespace play {

namespace {

/// A region of the screen; a pointer on one of its bounds is outside.
struct HoverRegion {
  int control;
  int yAbove;
  int yBelow;
  int xAbove;
  int xBelow;
  int number;
};

// clang-format off
constexpr auto kRegions = std::to_array<HoverRegion>({
    {ui::seer + 0,     138, 155, 644, 664,  1},
    {ui::seer + 1,     138, 155, 664, 688,  2},
    {ui::seer + 2,     138, 155, 688, 712,  3},
    {ui::seer + 3,     138, 155, 712, 736,  4},
    {ui::seer + 4,     138, 155, 736, 760,  5},
    {ui::seer + 5,     138, 155, 760, 782,  6},
    {ui::Statusreport, 172, 196, 644, 780,  7},
    {ui::Command5,     214, 236, 644, 780,  8},
    {ui::inform,       252, 274, 644, 708,  9},
    {ui::building,     252, 274, 718, 780, 10},
    {ui::gmmenu,       516, 540, 644, 780, 11},
    {ui::Label3,       548, 572, 644, 780, 21},
    {ui::Command1 + 7, 350, 372, 644, 708, 12},
    {ui::Command1 + 0, 350, 372, 718, 780, 13},
    {ui::Command1 + 8, 382, 404, 644, 708, 14},
    {ui::Command1 + 1, 382, 404, 718, 780, 15},
    {ui::Command1 + 4, 414, 436, 644, 708, 16},
    {ui::Command1 + 2, 414, 436, 718, 780, 17},
    {ui::Command1 + 5, 446, 468, 644, 708, 18},
    {ui::Command1 + 3, 446, 468, 718, 780, 19},
    {ui::Command1 + 6, 478, 500, 644, 780, 20},
});
// clang-format on

}  // namespace

void highlightHover(Scene& scene) {
  core::GameState& game = scene.game;
  const int x = game.cursorX;
  const int y = game.cursorY;
  game.hoverLabel = 0;
  if (x >= 640) {
    for (const HoverRegion& region : kRegions) {
      if (y > region.yAbove && y < region.yBelow && x > region.xAbove && x < region.xBelow) {
        scene.form[region.control].fore = platform::kYellow;
        game.hoverLabel = region.number;
        break;
      }
    }
  }
  for (const HoverRegion& region : kRegions) {
    platform::Color& color = scene.form[region.control].fore;
    if (color != platform::kBlack && game.hoverLabel != region.number) color = platform::kBlack;
  }
}

}  // namespace play
