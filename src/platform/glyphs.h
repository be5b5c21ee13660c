// The letters of the interface font as pictures of how far each pixel is covered. The desktop draws
// them from the outlines of a font file; the browser has them baked.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace platform {

struct Glyph {
  char32_t code = 0;
  int advance = 0;  // to the next letter, in units: a text is as wide at every scale
  // The bitmap, in pixels.
  int left = 0;  // from the pen to it
  int top = 0;   // from the base line up to its first row
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> cover;  // one byte a pixel, 255 for wholly covered
};

class Glyphs {
 public:
  virtual ~Glyphs() = default;
  /// The letter `code` at a letter height of `height` units, for surfaces of that scale. False where
  /// the font does not have it.
  virtual bool render(char32_t code, int height, int scale, Glyph& into) = 0;
};

/// Opens a font file. On failure returns nothing and says in `error` what is wrong with it.
std::unique_ptr<Glyphs> openGlyphs(const std::string& path, std::string& error);

}  // namespace platform
