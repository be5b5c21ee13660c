// Brings a picture to a display of another size, and the pointer back.
//
// The picture keeps its aspect and lies in the middle, between black bars. Whole factors are taken
// where they fill at least nine tenths of the height they could have; else every pixel of the
// display takes the part of the picture that it covers, so that edges are smooth and letters stay
// sharp.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/surface.h"

namespace platform {

/// Memory of 32-bit pixels, as displays have it: by how many bits each colour is shifted.
struct PixelMemory {
  std::uint8_t* pixels = nullptr;
  std::size_t stride = 0;  // bytes from one row to the next
  int red = 16;
  int green = 8;
  int blue = 0;
};

class Scaler {
 public:
  /// A picture of size `picture` on a display of size `display`; both at least 1 x 1.
  Scaler(Size picture, Size display);

  /// Where the picture lies on the display.
  const Rect& place() const { return place_; }
  bool whole() const { return whole_; }

  /// Pixels of the display that change with the given pixels of the picture.
  Rect covered(const Rect& picturePart) const;
  /// Writes `part`, a rectangle of the display within `place`, from the picture.
  void scale(const Surface& picture, const Rect& part, const PixelMemory& display);
  /// The picture's pixel at a point of the display; beyond the picture the nearest one of its rim.
  Point pictured(Point onDisplay) const;

 private:
  // What a pixel of the display takes: of `first` all but `share`, of the pixel behind it `share`,
  // in parts of 256.
  struct Tap {
    int first = 0;
    int share = 0;
  };
  static std::vector<Tap> taps(int from, int to);
  const std::uint32_t* stretchedRow(const Surface& picture, int row, const Rect& part,
                                    const PixelMemory& display);

  Size picture_;
  Rect place_{};
  bool whole_ = false;
  std::vector<Tap> columns_;
  std::vector<Tap> rows_;
  std::vector<std::uint32_t> packed_;        // a row of the picture in the display's order of bits
  std::vector<std::uint32_t> stretched_[2];  // rows of the picture at the display's width
  int stretchedRows_[2] = {-1, -1};
};

}  // namespace platform
