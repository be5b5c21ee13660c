#include "play/scrolling.h"

namespace play {

namespace {

// A step is a whole column of cells or half a row, so that the lattice of cells stays aligned.
constexpr int kStepX = 64;
constexpr int kStepY = 32;

// How far the picture may slide: with these limits its right edge stops just at the side panel.
constexpr int kLeftLimit = -22;
constexpr int kRightLimit = 800 - (1984 + 160);
constexpr int kTopLimit = 20;
constexpr int kBottomLimit = 600 - (1056 - 30);

}  // namespace

void scrollAtEdges(Scene& scene) {
  core::GameState& game = scene.game;
  const platform::Rect& place = scene.form[ui::picScroll].place;
  if (game.cursorX < 10 && place.left <= kLeftLimit) {
    scene.form.moveTo(ui::picScroll, place.left + kStepX, place.top);
    game.scrollX -= kStepX;
  }
  if (game.cursorX > 795 && place.left >= kRightLimit) {
    scene.form.moveTo(ui::picScroll, place.left - kStepX, place.top);
    game.scrollX += kStepX;
  }
  if (game.cursorY < 10 && place.top <= kTopLimit) {
    scene.form.moveTo(ui::picScroll, place.left, place.top + kStepY);
    game.scrollY -= kStepY;
  }
  if (game.cursorY > 595 && place.top >= kBottomLimit) {
    scene.form.moveTo(ui::picScroll, place.left, place.top - kStepY);
    game.scrollY += kStepY;
  }
}

}  // namespace play
