#include "play/scrolling.h"

#include "map/geometry.h"
#include "platform/display.h"
#include "sim/disasters.h"

namespace play {

namespace {

// A step is a whole column of cells or half a row, so that the lattice of cells stays aligned.
constexpr int kStepX = 64;
constexpr int kStepY = 32;

// How far the picture may slide: with these limits its right edge stops just at the side panel.
constexpr int kLeftLimit = -22;
constexpr int kRightLimit = platform::kScreenWidth - (map::kRestingPlace.width + 160);
constexpr int kTopLimit = 20;
constexpr int kBottomLimit = platform::kScreenHeight - (map::kRestingPlace.height - 30);

}  // namespace

void placeMap(Scene& scene) {
  const core::GameState& game = scene.game;
  constexpr platform::Rect rest = map::kRestingPlace;
  scene.form.moveTo(ui::picScroll, rest.left - game.scrollX + sim::shakeOffset(game),
                    rest.top - game.scrollY);
}

void scrollAtEdges(Scene& scene) {
  if (!scene.desk.edgeScrolling()) return;
  core::GameState& game = scene.game;
  // The limits are those of the place without the shake.
  constexpr platform::Rect rest = map::kRestingPlace;
  const int scrolledX = game.scrollX;
  const int scrolledY = game.scrollY;
  if (game.cursorX < 10 && rest.left - game.scrollX <= kLeftLimit) game.scrollX -= kStepX;
  if (game.cursorX > 795 && rest.left - game.scrollX >= kRightLimit) game.scrollX += kStepX;
  if (game.cursorY < 10 && rest.top - game.scrollY <= kTopLimit) game.scrollY -= kStepY;
  if (game.cursorY > 595 && rest.top - game.scrollY >= kBottomLimit) game.scrollY += kStepY;
  if (game.scrollX != scrolledX || game.scrollY != scrolledY) placeMap(scene);
}

}  // namespace play
