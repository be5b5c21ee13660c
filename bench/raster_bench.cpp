// The pair of raster copies that draws a picture, beside SDL's colour-keyed copy of the same picture and
// a plain copy of the same bytes.
#include <SDL2/SDL.h>
#include <benchmark/benchmark.h>

#include <cstring>

#include "platform/png.h"
#include "platform/surface.h"

namespace {

constexpr int kSide = 64;
constexpr const char* kPicture = VELLMORAN_BUILD_DIR "/data/pictures/pair/08.png";

struct Pair {
  platform::Surface tile;
  platform::Surface mask;
  platform::Surface target{1984, 1056};

  Pair() {
    std::string error;
    if (!platform::readPngPair(kPicture, tile, mask, error)) {
      std::fprintf(stderr, "%s\n", error.c_str());
      std::exit(1);
    }
  }
};

void RasterPair(benchmark::State& state) {
  Pair p;
  for (auto _ : state) {
    platform::blitPair(p.target, 333, 256, kSide, kSide, p.tile, p.mask);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(RasterPair);

void RasterPairAsTwoCopies(benchmark::State& state) {
  Pair p;
  for (auto _ : state) {
    platform::BitBlt(p.target, 333, 256, kSide, kSide, p.tile, 0, 0, platform::SRCAND);
    platform::BitBlt(p.target, 333, 256, kSide, kSide, p.mask, 0, 0, platform::SRCPAINT);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(RasterPairAsTwoCopies);

void SdlColourKey(benchmark::State& state, int bits, Uint32 format) {
  Pair p;
  SDL_Surface* target = SDL_CreateRGBSurfaceWithFormat(0, 1984, 1056, bits, format);
  SDL_Surface* source = SDL_CreateRGBSurfaceWithFormat(0, kSide, kSide, bits, format);
  const int bytes = bits / 8;
  for (int y = 0; y < kSide; ++y) {
    auto* row = static_cast<Uint8*>(source->pixels) + y * source->pitch;
    for (int x = 0; x < kSide; ++x) {
      const platform::Color c = p.tile.pixel(x, y);
      const Uint32 pixel = SDL_MapRGB(source->format, c.r, c.g, c.b);
      std::memcpy(row + x * bytes, &pixel, static_cast<std::size_t>(bytes));
    }
  }
  SDL_SetColorKey(source, SDL_TRUE, SDL_MapRGB(source->format, 255, 255, 255));
  for (auto _ : state) {
    SDL_Rect place{333, 256, kSide, kSide};
    SDL_BlitSurface(source, nullptr, target, &place);
    benchmark::ClobberMemory();
  }
  SDL_FreeSurface(source);
  SDL_FreeSurface(target);
}
BENCHMARK_CAPTURE(SdlColourKey, 24_bits, 24, SDL_PIXELFORMAT_RGB24);
BENCHMARK_CAPTURE(SdlColourKey, 32_bits, 32, SDL_PIXELFORMAT_ARGB8888);

void MemoryCopy(benchmark::State& state) {
  Pair p;
  for (auto _ : state) {
    for (int y = 0; y < kSide; ++y) {
      std::memcpy(p.target.row(256 + y) + 333 * 3, p.mask.row(y), kSide * 3);
    }
    benchmark::ClobberMemory();
  }
}
BENCHMARK(MemoryCopy);

}  // namespace
