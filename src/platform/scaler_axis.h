// How the pixels of a display cover those of a picture along one axis.
//
// Pixel i of the display covers the stretch from i * from / to to (i + 1) * from / to of the picture.
// It takes of every pixel of the picture in that stretch the part that it covers.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace platform {

class ScalerAxis {
 public:
  /// `from` pixels of a picture on `to` pixels of a display; both at least 1.
  ScalerAxis(int from, int to);

  int from() const { return from_; }
  int to() const { return to_; }
  bool grows() const { return to_ >= from_; }

  /// The most pixels of the picture that one of the display takes of.
  int taps() const { return taps_; }
  /// The first pixel of the picture that pixel i of the display takes of.
  int first(int i) const { return first_[i]; }
  /// What it takes of that one and of those behind it: taps() parts of 256, which add up to 256. Some
  /// may be 0; all belong to pixels of the picture.
  std::span<const std::uint16_t> parts(int i) const {
    const auto count = static_cast<std::size_t>(taps_);
    return {&parts_[static_cast<std::size_t>(i) * count], count};
  }

  struct Range {
    int begin;
    int end;
  };
  /// The pixels of the display that take of the pixels `begin` to `end - 1` of the picture.
  Range covered(Range picture) const;

 private:
  int from_;
  int to_;
  int taps_ = 1;
  std::vector<int> first_;
  std::vector<std::uint16_t> parts_;
};

}  // namespace platform
