// A map with small made-up pictures, so that new art breaks no test of the drawing.
#pragma once

#include <cstdlib>

#include "core/new_game.h"
#include "core/vocabulary.h"
#include "map/renderer.h"
#include "platform/pixels.h"

namespace map {

using platform::Color;
using platform::Surface;

/// Whether a pixel of a box of 64 x 32 units belongs to the cell's diamond.
inline bool inDiamond(int px, int py, int scale = 1) {
  return std::abs(2 * px + 1 - 64 * scale) + 2 * std::abs(2 * py + 1 - 32 * scale) < 64 * scale;
}

inline Color colorOf(int picture) {
  if (picture == 20) return platform::kBlack;
  return {static_cast<std::uint8_t>(40 + 3 * picture), static_cast<std::uint8_t>(250 - picture),
          static_cast<std::uint8_t>(picture % 7 * 30)};
}

/// Calls use(x, y) for every pixel of a box, or every cell of a square.
template <class Use>
void eachPixel(int width, int height, Use use) {
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) use(x, y);
  }
}

class MadeUpCity {
 public:
  MadeUpCity() {
    core::resetGame(game, values);
    values.gMission = core::Number(15);
    for (const PictureFile& file : pictureFiles()) paint(file);
  }

  core::GameState game;
  core::ProgramValues values;
  PictureSet pictures;
  platform::Canvas canvas{1984, 1056};
  Stage stage{game, values, pictures, canvas};

  void put(int x, int y, int code, int image, int tall) {
    game.tileCode(x, y) = code;
    game.tileImage(x, y) = static_cast<std::int16_t>(image);
    game.cellTall(x, y) = tall;
  }
  void putBlock(int x, int y, const core::Building& block) {
    for (std::size_t i = 0; i < 4; ++i) {
      put(x + core::kBlock[i].x, y + core::kBlock[i].y, block.code + static_cast<int>(i),
          block.look.images[i], block.look.tall[i]);
    }
  }
  /// What the surface must show when everything is repainted.
  Surface repainted() {
    platform::Canvas fresh(1984, 1056);
    Stage full{game, values, pictures, fresh};
    markCells(game, 0, core::kLastCell);
    DrawTiles32(full);
    DrawTiles2(full);
    unmarkCells(game, 0, core::kLastCell);
    game.blitCount = 0;
    return fresh.surface().clone();
  }

 private:
  // A tall picture fills its whole upper half: the farthest that one can reach.
  void paint(const PictureFile& file) {
    const auto n = static_cast<std::size_t>(file.number);
    const auto [width, height] = file.size;
    Surface black(width, height);
    Surface white(width, height);
    black.clear(colorOf(file.number));
    white.clear(colorOf(file.number));
    const int top = height == 64 ? 32 : 0;
    eachPixel(width, height > 64 ? 0 : height, [&](int x, int y) {
      if (y < top || inDiamond(x, y - top)) return;
      white.setPixel(x, y, platform::kWhite);
      black.setPixel(x, y, platform::kBlack);
    });
    using enum PictureFile::Kind;
    if (file.kind != tile) pictures.picMask[n] = std::move(black);
    if (file.kind != mask) pictures.picTile[n] = std::move(white);
  }
};

}  // namespace map
