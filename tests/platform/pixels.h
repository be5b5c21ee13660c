// Rolled numbers and pictures, and the comparison of pictures.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "platform/surface.h"

namespace platform {

using Dice = std::mt19937;

inline int roll(Dice& dice, int from, int to) {
  return std::uniform_int_distribution<int>(from, to)(dice);
}

inline Surface noise(Dice& dice, int width, int height) {
  Surface surface(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width * 3; ++x) surface.row(y)[x] = static_cast<std::uint8_t>(dice());
  }
  return surface;
}

inline bool same(const Surface& a, const Surface& b) {
  bool equal = a.width() == b.width() && a.height() == b.height();
  for (int y = 0; equal && y < a.height(); ++y) {
    equal = std::memcmp(a.row(y), b.row(y), static_cast<std::size_t>(a.width()) * 3) == 0;
  }
  return equal;
}

}  // namespace platform
