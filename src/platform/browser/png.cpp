// Pictures from a pack, by the names of the PNG files they were made from.
#include "platform/png.h"

#include <cstring>

#include "platform/browser/pack.h"
#include "platform/browser/picture_code.h"

namespace platform {

namespace {

const PackedPicture* find(const std::string& path, std::string& error) {
  const PackedPicture* const found = findPicture(path);
  if (found == nullptr) error = path + ": has not come from the server";
  return found;
}

Surface surfaceOf(const PackedPicture& picture, int scale) {
  return Surface(picture.size.width / scale, picture.size.height / scale, scale);
}

}  // namespace

bool readPng(const std::string& path, Surface& into, std::string& error, int scale) {
  const PackedPicture* const picture = find(path, error);
  if (picture == nullptr || picture->channels != 3) return false;
  Surface read = surfaceOf(*picture, scale);
  const auto width = static_cast<std::size_t>(picture->size.width);
  decodePicture(picture->coded, picture->size, 3, [&](int y, const std::uint8_t* pixels) {
    std::memcpy(read.row(y), pixels, width * 3);
  });
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
  const PackedPicture* const picture = find(path, error);
  if (picture == nullptr || picture->channels != 4) return false;
  Surface white = surfaceOf(*picture, scale);
  Surface black = surfaceOf(*picture, scale);
  white.clear(kWhite);
  decodePicture(picture->coded, picture->size, 4, [&](int y, const std::uint8_t* pixel) {
    for (int x = 0; x < picture->size.width; ++x, pixel += 4) {
      if (pixel[3] == 0) continue;
      std::memcpy(white.row(y) + x * 3, pixel, 3);
      std::memcpy(black.row(y) + x * 3, pixel, 3);
    }
  });
  onWhite = std::move(white);
  onBlack = std::move(black);
  return true;
}

}  // namespace platform
