// Brings a picture to a display of another size, and the pointer back.
//
// The picture keeps its aspect and is in the middle, between black bars. Whole factors are taken
// where they fill at least nine tenths of the height they could have; else every pixel of the
// display takes the part of the picture that it covers, so that edges are smooth and letters stay
// sharp.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/scaler_axis.h"
#include "platform/surface.h"

namespace platform {

/// The scale at which the program draws on a desktop of this size: 2 where the picture of 800 x 600
/// would be enlarged to more than 1.25 times its size, else 1.
int scaleFor(Size desktop);

/// Memory of 32-bit pixels, as displays have it: by how many bits each colour is shifted.
struct PixelMemory {
  std::uint8_t* pixels = nullptr;
  std::size_t stride = 0;  // bytes from one row to the next
  int red = 16;
  int green = 8;
  int blue = 0;
  int top = 0;  // the display's line that `pixels` begins with
};

class Scaler {
 public:
  /// A surface of `picture` units and this scale on a display of `display` pixels; both sizes at least
  /// 1 x 1.
  Scaler(Size picture, Size display, int scale = 1);

  /// Where the picture is on the display.
  const Rect& place() const { return place_; }
  bool whole() const { return whole_; }

  /// Pixels of the display that change with the given units of the picture.
  Rect covered(const Rect& picturePart) const;
  /// Writes `part`, a rectangle of the display within `place`, from the picture.
  void scale(const Surface& picture, const Rect& part, const PixelMemory& display);
  /// The picture's unit at a point of the display; beyond the picture the nearest one of its rim.
  Point pictured(Point onDisplay) const;

 private:
  /// A line of the display from the left edge of the picture.
  std::uint32_t* lineOf(const PixelMemory& display, int y) const;
  const std::uint32_t* stretchedRow(const Surface& picture, int row, const Rect& part,
                                    const PixelMemory& display);
  void prepareGrowing();
  void prepareShrinking();
  void grow(std::uint32_t* to, int begin, int end);
  void shrink(std::uint32_t* to, int begin, int end);

  int scale_;
  Size picture_;  // in pixels
  Rect place_{};
  bool whole_ = false;
  ScalerAxis columns_;
  ScalerAxis rows_;
  // A row of the picture in the display's order of bits. Behind it, where the picture grows, what
  // is on the borders of its pixels: on each border is at most one pixel of the display.
  std::vector<std::uint32_t> packed_;
  // For every column of the display what it takes of that; where the picture shrinks, first the first
  // pixel of all columns, then the second of all, and what part of each.
  std::vector<std::uint16_t> sources_;
  std::vector<std::uint8_t> borders_;  // for every byte of a border: how much is of the later pixel
  std::vector<std::uint16_t> parts_;   // for every byte of a source
  std::vector<std::uint32_t> picked_;
  // Rows of the picture at the display's width: as many as a row of the display takes of.
  std::vector<std::vector<std::uint32_t>> stretched_;
  struct Kept {
    int row = -1;
    const std::uint32_t* pixels = nullptr;
  };
  std::vector<Kept> kept_;
  std::vector<int> lines_;  // for every row: a line of the display that takes of it alone, or -1
  struct Taken {
    const std::uint8_t* row;
    std::uint16_t share;
  };
  std::vector<Taken> taken_;  // what one row of the display takes of
  std::vector<std::uint16_t> sums_;
};

}  // namespace platform
