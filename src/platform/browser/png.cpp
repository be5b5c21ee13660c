// Pictures from a pack, by the names of the PNG files they were made from.
#include "platform/png.h"

#include <cstring>

#include "platform/browser/pack.h"

namespace platform {

namespace {

bool take(const std::string& path, PackedPicture& into, std::string& error) {
  if (takePicture(path, into)) return true;
  error = path + ": has not come from the server";
  return false;
}

/// Calls put(x, y, the bytes of the pixel) for every pixel.
template <typename Put>
void eachPixel(const PackedPicture& picture, Put put) {
  const std::uint8_t* pixel = picture.pixels.data();
  for (int y = 0; y < picture.size.height; ++y) {
    for (int x = 0; x < picture.size.width; ++x, pixel += picture.channels) put(x, y, pixel);
  }
}

}  // namespace

bool readPng(const std::string& path, Surface& into, std::string& error, int scale) {
  PackedPicture picture;
  if (!take(path, picture, error)) return false;
  Surface read(picture.size.width / scale, picture.size.height / scale, scale);
  eachPixel(picture,
            [&](int x, int y, const std::uint8_t* p) { std::memcpy(read.row(y) + x * 3, p, 3); });
  into = std::move(read);
  return true;
}

// The pack gives its pictures without delay, and there is one thread only.
struct PngAhead::Reading {
  std::string path;
  int scale;
};

PngAhead::PngAhead(const std::string& path, int scale)
    : reading_(std::make_unique<Reading>(Reading{path, scale})) {}

PngAhead::~PngAhead() = default;

bool PngAhead::take(Surface& into, std::string& error) {
  return readPng(reading_->path, into, error, reading_->scale);
}

bool readPngPair(const std::string& path, Surface& onWhite, Surface& onBlack, std::string& error,
                 int scale) {
  PackedPicture picture;
  if (!take(path, picture, error)) return false;
  Surface white(picture.size.width / scale, picture.size.height / scale, scale);
  Surface black(picture.size.width / scale, picture.size.height / scale, scale);
  white.clear(kWhite);
  eachPixel(picture, [&](int x, int y, const std::uint8_t* p) {
    if (picture.channels == 4 && p[3] < 128) return;
    std::memcpy(white.row(y) + x * 3, p, 3);
    std::memcpy(black.row(y) + x * 3, p, 3);
  });
  onWhite = std::move(white);
  onBlack = std::move(black);
  return true;
}

}  // namespace platform
