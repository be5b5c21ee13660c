// The design of walkers by their direction.
#pragma once

#include <array>

#include "core/vocabulary.h"
#include "platform/geometry.h"

namespace map {

struct WalkerDesign {
  core::CellOffset cellStep;
  platform::Point pixelStep;  // for each tick; sixteen make one cell
  platform::Point base;       // of the block in the start cell, from the origin of its tall box
  int road;                   // the picture of the road it walks on
  int patch;                  // the empty piece of that road
  std::array<int, 4> frames;
};

// clang-format off
inline constexpr std::array<WalkerDesign, 4> kWalkerDesigns{{
    // cell     pixels    base      road               patch  frames
    {{ 0, -1}, { 2, -1}, {20, 38}, core::kRoadAlongY,  56,   {22, 23, 22, 24}},
    {{ 0,  1}, {-2,  1}, {20, 38}, core::kRoadAlongY,  56,   {39, 38, 39, 38}},
    {{ 1,  0}, { 2,  1}, {24, 34}, core::kRoadAlongX,  57,   {40, 41, 36, 41}},
    {{-1,  0}, {-2, -1}, {24, 34}, core::kRoadAlongX,  57,   {43, 42, 43, 42}},
}};
// clang-format on

/// The design of direction 0..3.
constexpr const WalkerDesign& walkerDesign(int direction) {
  return kWalkerDesigns[direction];
}

}  // namespace map
