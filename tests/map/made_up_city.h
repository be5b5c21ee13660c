// A map with small made-up pictures, so that new art breaks no test of the drawing.
#pragma once

#include <cstdlib>
#include <cstring>
#include <memory>

#include "core/new_game.h"
#include "core/vocabulary.h"
#include "map/renderer.h"

namespace map {

using platform::Color;
using platform::Surface;

/// Whether a pixel of a 64 x 32 box belongs to the cell's diamond.
inline bool inDiamond(int px, int py) {
  return std::abs(2 * px - 63) + 2 * std::abs(2 * py - 31) < 64;
}

inline Color colorOf(int picture) {
  return {static_cast<std::uint8_t>(40 + 3 * picture), static_cast<std::uint8_t>(250 - picture),
          static_cast<std::uint8_t>(picture % 7 * 30)};
}

/// Road stripes that are the same after each step of a walker.
inline Color stripe(int along) {
  return {200, 100, static_cast<std::uint8_t>(((along % 32) + 32) % 32 * 8)};
}

inline bool same(const Surface& a, const Surface& b) {
  return std::memcmp(a.row(0), b.row(0), a.stride() * static_cast<std::size_t>(a.height())) == 0;
}

/// Calls use(x, y) for every pixel of a box.
template <class Use>
void eachPixel(int width, int height, Use use) {
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) use(x, y);
  }
}

/// The smallest box around all pixels that are not black.
inline platform::Rect drawnBox(const Surface& surface) {
  platform::Rect box{};
  eachPixel(surface.width(), surface.height(), [&](int x, int y) {
    if (surface.pixel(x, y) != platform::kBlack) box = platform::boundingBox(box, {x, y, 1, 1});
  });
  return box;
}

class MadeUpCity {
  std::pair<std::unique_ptr<core::GameState>, std::unique_ptr<core::ProgramValues>> owned_{
      std::make_unique<core::GameState>(), std::make_unique<core::ProgramValues>()};

 public:
  MadeUpCity() {
    core::resetGame(game, values);
    game.drawTileWidth = game.drawTileHeight = 64;
    game.drawBoardSize = core::kBoardSize;
    game.drawOffsetY = 16;
    values.gMission = core::Number(15);
    for (const PictureFile& file : pictureFiles()) paint(file);
    pictures.picTile[21] = Surface(12, 17);
    pictures.picMask[21] = Surface(12, 17);
  }

  core::GameState& game = *owned_.first;
  core::ProgramValues& values = *owned_.second;
  PictureSet pictures;
  platform::Canvas canvas{1984, 1056};
  Stage stage{game, values, pictures, canvas};

  void put(int x, int y, int code, int image, int tall) {
    game.tileCode(x, y) = code;
    game.tileImage(x, y) = static_cast<std::int16_t>(image);
    game.cellTall(x, y) = tall;
  }
  void putBlock(int x, int y, const core::BlockDesign& block) {
    for (std::size_t i = 0; i < 4; ++i) {
      put(x + core::kBlock[i].x, y + core::kBlock[i].y, block.firstCode + static_cast<int>(i),
          block.images[i], block.tall[i]);
    }
  }
  /// What the surface must show when everything is painted anew.
  Surface paintedAnew() {
    platform::Canvas fresh(1984, 1056);
    Stage anew{game, values, pictures, fresh};
    markCells(game, 0, core::kLastCell);
    DrawTiles32(anew, kFlatCells);
    DrawTiles2(anew, kTallCells);
    unmarkCells(game, 0, core::kLastCell);
    game.blitCount = 0;
    return fresh.surface().clone();
  }

 private:
  // A tall picture fills its whole upper half: the farthest that one can reach. Walkers are blocks of
  // road with a figure that leaves out what the next step uncovers.
  void paint(const PictureFile& file) {
    const auto n = static_cast<std::size_t>(file.number);
    const auto [width, height] = file.size;
    Surface black(width, height);
    Surface white(width, height);
    black.clear(colorOf(file.number));
    white.clear(colorOf(file.number));
    const int top = height == 64 ? 32 : 0;
    const bool alongY = n == 56 || (n >= 22 && n <= 24) || n == 38 || n == 39;
    eachPixel(width, height > 64 ? 0 : height, [&](int x, int y) {
      Color color = n == 20 ? platform::kBlack : colorOf(file.number);
      if (n == 1) color = stripe(x + 2 * y);
      if (n == 2) color = stripe(x - 2 * y);
      if (width == 12 && (n > 55 || x < 2 || x > 9 || y < 1 || y > 15)) {
        color = alongY ? stripe(20 + x + 2 * (6 + y)) : stripe(24 + x - 2 * (2 + y));
      }
      const bool outside = width > 12 && y >= top && !inDiamond(x, y - top);
      white.setPixel(x, y, outside ? platform::kWhite : color);
      black.setPixel(x, y, outside ? platform::kBlack : color);
    });
    using enum PictureFile::Kind;
    if (file.kind != tile) pictures.picMask[n] = std::move(black);
    if (file.kind != mask) pictures.picTile[n] = std::move(white);
  }
};

}  // namespace map
