// What the game costs: presses, ticks, drawing, saving, on a city that fills the largest map.
#include <benchmark/benchmark.h>

#include "core/number_text.h"
#include "full_city.h"
#include "map/walkers.h"
#include "play/press.h"
#include "shell/game_tick.h"
#include "sim/calendar.h"
#include "sim/coverage.h"
#include "sim/flood.h"
#include "sim/food.h"
#include "sim/history.h"
#include "sim/population.h"
#include "sim/rebuild.h"
#include "sim/treasury.h"
#include "store/record.h"

namespace {

bench::FullCity& city() {
  static bench::FullCity full;
  return full;
}

/// The middle of a cell on the map surface.
double surfaceX(int x, int y) {
  return 32 * (x - y) + 992;
}
double surfaceY(int x, int y) {
  return 16 * (x + y) + 48;
}

void PressThatPlacesAResidence(benchmark::State& state) {
  bench::FullCity& c = city();
  c.use(7, 14, 12);  // makes room for it
  c.game().lastPaletteTool = 1;
  for (auto _ : state) {
    c.game().currentTool = 1;
    c.game().cursorFootprint = 2;
    play::pressMap(c.scene(), surfaceX(14, 12), surfaceY(14, 12));
    state.PauseTiming();
    c.use(7, 14, 12);
    state.ResumeTiming();
  }
  c.use(1, 14, 12);
}
BENCHMARK(PressThatPlacesAResidence);

void FloodServices(benchmark::State& state) {
  for (auto _ : state) sim::floodServices(city().game());
}
BENCHMARK(FloodServices);

void FloodServicesFromNothing(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    for (int k = 1; k <= core::kServices; ++k) sim::clearLayer(city().game(), k);
    state.ResumeTiming();
    sim::floodServices(city().game());
  }
}
BENCHMARK(FloodServicesFromNothing);

void GameTick(benchmark::State& state) {
  for (auto _ : state) {
    city().game().tickOfMonth = 3;  // no roll and no stage of the farms
    shell::gameTick(city().screen());
  }
}
BENCHMARK(GameTick);

void MonthRollWithFamineRebuild(benchmark::State& state) {
  for (auto _ : state) {
    city().game().food = 100000;
    city().game().famineState = 1;
    city().game().tickOfMonth = city().game().monthLength;
    shell::gameTick(city().screen());
  }
}
BENCHMARK(MonthRollWithFamineRebuild);

void FullCoat(benchmark::State& state) {
  play::Scene& scene = city().scene();
  for (auto _ : state) {
    map::markCells(scene.game, 0, core::kLastCell);
    map::DrawTiles(scene.stage);
    map::DrawTiles32(scene.stage);
  }
  map::unmarkCells(scene.game, 0, core::kLastCell);
}
BENCHMARK(FullCoat);

void TallPass(benchmark::State& state) {
  for (auto _ : state) map::DrawTiles2(city().scene().stage);
}
BENCHMARK(TallPass);

void WalkerStep(benchmark::State& state) {
  play::Scene& scene = city().scene();
  for (auto _ : state) {
    state.PauseTiming();
    scene.game.blitCount = 0;
    map::spawnWalkers(scene.game, scene.game, scene.game, city().session().walkerRandom());
    state.ResumeTiming();
    map::stepWalkers(scene.stage);
  }
}
BENCHMARK(WalkerStep);

void ComposeWholeScreen(benchmark::State& state) {
  shell::Program& program = city().session().program();
  for (auto _ : state) {
    program.painter().forget();
    benchmark::DoNotOptimize(&program.paint());
  }
}
BENCHMARK(ComposeWholeScreen);

void ComposeAfterOneLabelChanged(benchmark::State& state) {
  shell::Program& program = city().session().program();
  int n = 0;
  for (auto _ : state) {
    core::setCaption(city().scene().text(play::ui::para1), "Gold:", ++n);
    benchmark::DoNotOptimize(&program.paint());
  }
}
BENCHMARK(ComposeAfterOneLabelChanged);

void ComposeWithNothingChanged(benchmark::State& state) {
  shell::Program& program = city().session().program();
  program.paint();
  for (auto _ : state) benchmark::DoNotOptimize(&program.paint());
}
BENCHMARK(ComposeWithNothingChanged);

void TenYearsWithoutDrawing(benchmark::State& state) {
  core::GameState& game = city().game();
  core::ProgramValues& values = city().scene().values;
  for (auto _ : state) {
    for (int tick = 0; tick < 10 * 12 * 25; ++tick) {
      sim::wrapHistory(game);
      sim::movePopulation(game);
      if (game.tickOfMonth >= game.monthLength) {
        sim::beginMonth(game, values);
        sim::harvest(game, values);
        sim::consume(game);
        if (sim::stepFamine(game).rebuild) {
          sim::rebuildCity(game, {.evolve = false});
        }
      }
      sim::moveMoney(game);
      sim::writeHistory(game, values);
      sim::rateServices(game, game);
      game.tickOfMonth += 1;
    }
  }
}
BENCHMARK(TenYearsWithoutDrawing)->Unit(benchmark::kMillisecond);

void SaveGame(benchmark::State& state) {
  std::string error;
  for (auto _ : state) {
    if (!store::saveGame("bench.sav", city().game(), city().scene().values, error)) {
      state.SkipWithError(error.c_str());
    }
  }
}
BENCHMARK(SaveGame)->Unit(benchmark::kMillisecond);

void LoadGame(benchmark::State& state) {
  std::string error;
  if (!store::saveGame("bench.sav", city().game(), city().scene().values, error)) {
    state.SkipWithError(error.c_str());
  }
  for (auto _ : state) benchmark::DoNotOptimize(store::readGame("bench.sav", error));
}
BENCHMARK(LoadGame)->Unit(benchmark::kMillisecond);

}  // namespace
