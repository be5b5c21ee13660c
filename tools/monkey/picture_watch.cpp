// The map surface against a complete redraw, and the screen against a complete repaint.
#include <algorithm>
#include <cstring>

#include "map/geometry.h"
#include "map/renderer.h"
#include "map/walker_designs.h"
#include "monkey/watch.h"
#include "platform/png.h"
#include "play/game_controls.h"

namespace monkey {

namespace {

namespace timer = core::game_timer;
using platform::Rect;

Rect boxOf(int x, int y) {
  const platform::Point origin = map::tallOrigin(x, y);
  return {origin.x, origin.y, 64, 64};
}

/// Place of a walker's block on the surface.
Rect blockOf(const core::GameState& game, int slot) {
  const map::WalkerDesign& design = map::walkerDesign(game.walkerDir[slot]);
  const Rect start = boxOf(game.walkerX[slot], game.walkerY[slot]);
  return {start.left + design.base.x + game.walkerPxX[slot],
          start.top + design.base.y + game.walkerPxY[slot], 12, 17};
}

/// Whether the ground at a pixel of the surface is straight road.
bool isLane(const core::GameState& game, int px, int py) {
  const auto [a, b] = map::cellAt(px, py);
  if (a < 0 || b < 0 || a > core::kLastCell || b > core::kLastCell) return false;
  const int image = game.tileImage(a, b);
  return image == core::kRoadAlongX || image == core::kRoadAlongY;
}

// Along the edges of two cells either picture may have the pixel.
bool isWellInLane(const core::GameState& game, int px, int py) {
  return isLane(game, px - 2, py) && isLane(game, px + 2, py) && isLane(game, px, py - 1) &&
         isLane(game, px, py + 1);
}

bool isUnderTallPicture(const core::GameState& game, int px, int py) {
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      if (game.cellTall(x, y) == 1 && boxOf(x, y).contains({px, py})) return true;
    }
  }
  return false;
}

/// Where the surface need not be what the cells say.
std::vector<Rect> exceptions(const core::GameState& game) {
  std::vector<Rect> rects;
  for (int slot = 1; slot <= core::kWalkers; ++slot) {
    if (game.walkerActive[slot] == 1) rects.push_back(blockOf(game, slot));
  }
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      // In an access view what changes is marked, and drawn with the next view.
      if (game.overlayView != 0 && game.cellDirty(x, y) == 1) rects.push_back(boxOf(x, y));
    }
  }
  return rects;
}

/// The first pixel in which two surfaces of one size differ outside the exceptions.
bool findDifference(const platform::Surface& a, const platform::Surface& b, const auto& excepted,
                    platform::Point& at) {
  const auto bytes = static_cast<std::size_t>(a.width()) * 3;
  for (int y = 0; y < a.height(); ++y) {
    if (std::memcmp(a.row(y), b.row(y), bytes) == 0) continue;
    for (int x = 0; x < a.width(); ++x) {
      if (a.pixel(x, y) == b.pixel(x, y)) continue;
      if (excepted(x, y)) continue;
      at = {x, y};
      return true;
    }
  }
  return false;
}

std::string text(platform::Point p) {
  return std::to_string(p.x) + "," + std::to_string(p.y);
}

}  // namespace

void Watch::pictures() {
  if (screen() == nullptr) return;
  watchFramebuffer();
  // Between the choice of a game and its load the surface is bare. A mission that was won has another
  // number already, with another backdrop.
  if (sound() && !on(timer::Timer3) && !on(timer::Timer9)) watchSurface();
}

/// Notes where walkers are, and where their next step takes them.
void Watch::watchWalkers() {
  for (int slot = 1; slot <= core::kWalkers; ++slot) {
    if (game()->walkerActive[slot] != 1) continue;
    const platform::Surface& surface = screen()->canvas()->surface();
    if (walked_.empty())
      walked_.resize(static_cast<std::size_t>(surface.width() * surface.height()));
    const platform::Point next = map::walkerDesign(game()->walkerDir[slot]).pixelStep;
    const Rect block = blockOf(*game(), slot);
    const Rect both =
        intersection(boundingBox(block, moved(block, next.x, next.y)), surface.bounds());
    for (int y = both.top; y < both.bottom(); ++y) {
      for (int x = both.left; x < both.right(); ++x) {
        walked_[y * surface.width() + x] = true;
      }
    }
  }
}

/// Everything drawn once more over the surface must leave it as it is.
void Watch::watchSurface() {
  platform::Surface& surface = screen()->canvas()->surface();
  if (redrawn_ == nullptr) {
    redrawn_ = std::make_unique<platform::Canvas>(surface.width(), surface.height());
  }
  BitBlt(redrawn_->surface(), 0, 0, surface.width(), surface.height(), surface, 0, 0,
         platform::SRCCOPY);
  static core::GameState copy;
  copy = *game();
  map::Stage stage{copy, values(), assets_.pictures, *redrawn_};
  map::markCells(copy, 0, core::kLastCell);
  map::DrawTiles32(stage);
  map::DrawTiles2(stage);
  platform::Point at;
  const std::vector<Rect> except = exceptions(*game());
  const auto excepted = [&](int x, int y) {
    // The corners of a block can extend past the end of a road, where nothing paints the ground,
    // and not every tall picture that it touches is painted again before the next redraw.
    const auto pixel = static_cast<std::size_t>(y * surface.width() + x);
    if (!walked_.empty() && walked_[pixel] &&
        (!isWellInLane(*game(), x, y) || isUnderTallPicture(*game(), x, y))) {
      return true;
    }
    return std::any_of(except.begin(), except.end(), [&](const Rect& rect) {
      return rect.contains({x, y});
    });
  };
  if (findDifference(surface, redrawn_->surface(), excepted, at)) {
    std::string error;
    platform::writePng("../is.png", surface, error);
    platform::writePng("../should.png", redrawn_->surface(), error);
    wrong("the surface is not what the cells say at pixel " + text(at) +
          (walked_.empty() || !walked_[at.y * surface.width() + at.x]
               ? ""
               : ", where a walker has been"));
  }
}

void Watch::watchFramebuffer() {
  shell::Program& program = session_->program();
  program.paint();
  shown_ = program.framebuffer().clone();
  program.painter().forget();
  program.paint();
  platform::Point at;
  if (findDifference(
          shown_, program.framebuffer(), [](int, int) { return false; }, at)) {
    std::string error;
    platform::writePng("../is.png", shown_, error);
    platform::writePng("../should.png", program.framebuffer(), error);
    wrong("the screen is not what a whole repaint shows at pixel " + text(at));
  }
}

}  // namespace monkey
