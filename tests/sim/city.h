// A city on a new map, laid out by the tests without asking what a player may build.
#pragma once

#include "core/new_game.h"
#include "core/vocabulary.h"
#include "sim/rebuild.h"

namespace sim {

struct City {
  core::GameState game;
  core::ProgramValues values;

  City() {
    core::resetGame(game, values);
    game.food = 1000;
  }

  void block(int firstCode, int x, int y) {
    for (int n = 0; n < 4; ++n) cell(firstCode + n, x + n % 2, y + n / 2);
    ++nextId_;
  }
  void single(int code, int x, int y) {
    cell(code, x, y);
    ++nextId_;
  }
  void farm(int x, int y) {
    for (int n = 0; n < 9; ++n) cell(core::kFarmCode + n, x + n / 3, y + n % 3);
    ++nextId_;
  }
  void rebuild() { rebuildCity(game, {.flood = true}); }
  /// Gives the block at (x, y) its first `services` services.
  void serve(int x, int y, int services) {
    for (int k = 1; k <= core::kServices; ++k) {
      for (int n = 0; n < 4; ++n) game.cellService[k](x + n % 2, y + n / 2) = k <= services ? 1 : 0;
    }
    rebuild();
  }
  int count(const core::CellGrid<core::Flag>& flags) const {
    int sum = 0;
    for (int y = -10; y <= 39; ++y) {
      for (int x = -10; x <= 39; ++x) sum += flags(x, y);
    }
    return sum;
  }

 private:
  void cell(int code, int x, int y) {
    game.tileCode(x, y) = code;
    game.buildingId(x, y) = nextId_;
  }
  int nextId_ = 1;
};

}  // namespace sim
