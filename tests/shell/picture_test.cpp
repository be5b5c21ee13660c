// The screen always shows the current city: only what changed is painted, and nothing is missed.
#include <gtest/gtest.h>

#include <random>

#include "core/vocabulary.h"
#include "platform/pixels.h"
#include "play/panels.h"
#include "play/preferences.h"
#include "play/press.h"
#include "shell/game_screen.h"
#include "shell/script_runner.h"

namespace {

using script::Play;

TEST(Picture, AfterEveryChangeEqualsAWholePaint) {
  Play play("open-play");
  play.run("click Command5, spriteonoff; set population=1000; advance 1000");
  play.run("click Command21, Command7");
  auto& screen = static_cast<shell::GameScreen&>(*play.program().screen());
  platform::Surface seen(screen.canvas()->surface().width(), screen.canvas()->surface().height());
  std::minstd_rand chance(11);
  const auto below = [&chance](int n) {
    return static_cast<int>(chance() % static_cast<unsigned>(n));
  };
  // Time brings months, fields and the loss of buildings without a road.
  const auto waitSeconds = [&](int seconds) {
    play.run("advance " + std::to_string(1000 * seconds));
  };
  for (int n = 0; n < 500; ++n) {
    play.state().gold = 1000;
    if (n % 50 == 0) play.state().food = below(2) * 500;
    const int did = n < 60 ? 4 : below(16);
    if (did == 0) {
      waitSeconds(8);
    } else if (did == 1) {
      waitSeconds(1 + below(3));
    } else if (did == 2) {
      below(2) == 0 ? play::raiseTax(screen.scene()) : play::lowerTax(screen.scene());
    } else if (did == 3) {
      play::toggleFarmAnimation(screen.scene());
    } else {
      // Roads along four lines, and every tool around them, so that buildings meet and give way.
      const int tool = did < 6 ? 8 : did < 9 ? 7 : 1 + below(9);
      play.state().currentTool = tool;
      const core::Building* building = core::buildingOfTool(tool);
      play.state().cursorFootprint = building == nullptr ? 1 : building->side;
      const int x = 9 + below(12);
      const int y = did < 8 ? 9 + 4 * below(4) : 9 + below(12);
      play::useTool(screen.scene(), tool, {x, y}, play::User::player);
    }
    platform::BitBlt(seen, 0, 0, seen.width(), seen.height(), screen.canvas()->surface(), 0, 0,
                     platform::SRCCOPY);
    const auto marks = play.state().cellDirty;
    map::markCells(play.state(), 0, core::kLastCell);
    play::redraw(screen.scene());
    play.state().cellDirty = marks;
    ASSERT_TRUE(same(seen, screen.canvas()->surface())) << "step " << n << ", kind " << did;
  }
}

}  // namespace
