// PNG files in and out of surfaces.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/surface.h"

namespace platform {

/// Reads an opaque picture drawn at a scale. Alpha, where the file has it, is dropped. False, with the
/// file's name and what is wrong in `error`, when the file is missing, damaged, larger than 4096 x 4096
/// or no whole number of units wide and high.
bool readPng(const std::string& path, Surface& into, std::string& error, int scale = 1);

/// Reads an opaque picture, as readPng does, while the caller does other work.
class PngAhead {
 public:
  explicit PngAhead(const std::string& path, int scale = 1);
  ~PngAhead();
  /// Waits for the picture and moves it into `into`, once. False as for readPng.
  bool take(Surface& into, std::string& error);

 private:
  struct Reading;
  std::unique_ptr<Reading> reading_;
};

/// Reads a picture with binary transparency into two surfaces of its size: `onWhite` with the
/// transparent pixels white, `onBlack` with them black. Alpha of 128 and more counts as opaque.
bool readPngPair(const std::string& path, Surface& onWhite, Surface& onBlack, std::string& error,
                 int scale = 1);

/// Reads a picture with its alpha as rows of red, green, blue, alpha bytes (for the program's icon).
bool readPngRgba(const std::string& path, std::vector<std::uint8_t>& into, Size& size,
                 std::string& error);

/// Writes the pixels of a surface as an 8-bit RGB PNG, not interlaced.
bool writePng(const std::string& path, const Surface& surface, std::string& error);

}  // namespace platform
