// What a player sees is the city as it stands: only what changed is painted, and nothing is missed.
#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "core/vocabulary.h"
#include "play/press.h"
#include "shell/game_screen.h"
#include "shell/open_game.h"

namespace {

using script::OpenGame;

bool same(const platform::Surface& a, const platform::Surface& b) {
  for (int y = 0; y < a.height(); ++y) {
    if (std::memcmp(a.row(y), b.row(y), static_cast<std::size_t>(a.width()) * 3) != 0) return false;
  }
  return true;
}

TEST(Picture, AfterEveryChangeItIsAsIfPaintedAnew) {
  OpenGame play;
  play.run("click Command5\nclick spriteonoff\nset population 1000\nadvance 1000\nclick Command21");
  play.run("click Command7\nclick Statusreport");
  auto& screen = static_cast<shell::GameScreen&>(*play.session().program().screen());
  platform::Surface seen(screen.canvas()->surface().width(), screen.canvas()->surface().height());
  std::minstd_rand chance(11);
  const auto below = [&chance](int n) {
    return static_cast<int>(chance() % static_cast<unsigned>(n));
  };
  constexpr const char* kOther[] = {"click taxrateplus", "click taxrateminus", "advance 3000",
                                    "advance 8000",      "click zoomminus",    "set food 500",
                                    "set food 0"};
  for (int n = 0; n < 400; ++n) {
    play.run("set gold 1000");
    std::string did;
    if (n % 8 == 7) {
      // Panels lie over one another here; what stands on top is as good as what is meant.
      did = kOther[below(7)];
      play(did);
    } else {
      // Roads first; later every tool, on a small square, so that buildings meet and give way.
      const int tool = n < 40 || below(3) == 0 ? 8 : 1 + below(9);
      play.state().currentTool = tool;
      play.state().cursorFootprint = core::toolDesign(tool).footprint;
      play.state().cellX = 11 + below(9);
      play.state().cellY = 11 + below(9);
      did = "tool " + std::to_string(tool);
      play::useTool(screen.scene(), tool, play::Hand::player);
    }
    platform::BitBlt(seen, 0, 0, seen.width(), seen.height(), screen.canvas()->surface(), 0, 0,
                     platform::SRCCOPY);
    const auto marks = play.state().cellDirty;
    map::markCells(play.state(), 0, core::kLastCell);
    play::redraw(screen.scene());
    play.state().cellDirty = marks;
    ASSERT_TRUE(same(seen, screen.canvas()->surface())) << n << ": " << did;
  }
}

}  // namespace
