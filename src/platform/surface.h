// Surfaces of 24-bit pixels and the raster copies between them.
//
// A pixel is three bytes: red, green, blue. The copies clip on both sides: what would fall outside
// the destination is dropped, and what would be read beyond the source gives nothing.
//
// Places and sizes are given in units of the layout. A surface has a scale, 1 or 2: so many pixels
// each way make one unit. All surfaces that are copied to one another have the same scale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "platform/color.h"
#include "platform/geometry.h"

namespace platform {

/// Raster operations of the copies.
inline constexpr std::uint32_t SRCCOPY = 0x00CC0020;   // destination = source
inline constexpr std::uint32_t SRCAND = 0x008800C6;    // destination = destination AND source
inline constexpr std::uint32_t SRCPAINT = 0x00EE0086;  // destination = destination OR source

class Surface {
 public:
  Surface() = default;
  /// A black surface; width and height in units, each at least 0.
  Surface(int width, int height, int scale = 1);
  Surface(Surface&&) noexcept = default;
  Surface& operator=(Surface&&) noexcept = default;

  int width() const { return width_; }
  int height() const { return height_; }
  Rect bounds() const { return {0, 0, width_, height_}; }
  bool empty() const { return width_ == 0 || height_ == 0; }

  /// Pixels to a unit. Whoever draws single pixels gets their places from `inPixels`: nothing else
  /// makes pixels of units.
  int scale() const { return scale_; }
  Point inPixels(Point units) const { return {units.x * scale_, units.y * scale_}; }
  Rect inPixels(const Rect& units) const {
    return {units.left * scale_, units.top * scale_, units.width * scale_, units.height * scale_};
  }
  Rect pixelBounds() const { return inPixels(bounds()); }

  /// Bytes from one row of pixels to the next.
  std::size_t stride() const { return stride_; }
  /// The first byte of row y of the pixels, 0 <= y < pixelBounds().height.
  std::uint8_t* row(int y) { return pixels_.get() + stride_ * static_cast<std::size_t>(y); }
  const std::uint8_t* row(int y) const {
    return pixels_.get() + stride_ * static_cast<std::size_t>(y);
  }

  /// The colour of a pixel; black outside the surface.
  Color pixel(int x, int y) const;
  /// Writes one pixel; nothing outside the surface.
  void setPixel(int x, int y, Color color);
  /// Fills the part of a rectangle that is on the surface.
  void fill(const Rect& rect, Color color) { fillPixels(inPixels(rect), color); }
  void fillPixels(const Rect& pixels, Color color);
  void clear(Color color = kBlack) { fill(bounds(), color); }
  /// A copy of the whole surface.
  Surface clone() const;

 private:
  int width_ = 0;
  int height_ = 0;
  int scale_ = 1;
  std::size_t stride_ = 0;
  std::unique_ptr<std::uint8_t[]> pixels_;
};

/// Copies width x height units of `source` from (sourceX, sourceY) to (x, y) of `target` with one of
/// the raster operations above. An unknown operation does nothing. Source and target must differ.
/// False when every pixel stayed as it was, which a plain copy does not look at.
bool BitBlt(Surface& target, int x, int y, int width, int height, const Surface& source,
            int sourceX, int sourceY, std::uint32_t operation);

/// The same from a source rectangle of another size, by nearest pixel; equal sizes copy 1:1.
bool StretchBlt(Surface& target, int x, int y, int width, int height, const Surface& source,
                int sourceX, int sourceY, int sourceWidth, int sourceHeight,
                std::uint32_t operation);

/// The part of a row of a pair outside of which its tile is white and its mask black, so that drawing
/// it changes nothing: from pixel `first` up to the one before `end`.
struct PairRow {
  std::int16_t first;
  std::int16_t end;
  bool solid;  // tile and mask are alike in that part: drawing it is a plain copy
};
/// Those of a pair of surfaces of equal size.
std::vector<PairRow> pairRows(const Surface& tile, const Surface& mask);

/// SRCAND of `tile` and then SRCPAINT of `mask`, both from (0, 0) with the same box, in one walk over
/// the pixels. The result is to the bit what the two copies give.
bool blitPair(Surface& target, int x, int y, int width, int height, const Surface& tile,
              const Surface& mask, std::span<const PairRow> rows = {});

}  // namespace platform
