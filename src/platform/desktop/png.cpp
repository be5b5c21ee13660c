#include "platform/png.h"

#include <png.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "platform/desktop/system_error.h"

namespace platform {

namespace {

constexpr png_uint_32 kLargestSide = 4096;

/// Where decoded pixels go; a stride of 0 means rows without padding.
struct Rows {
  std::uint8_t* first;
  int stride;
};

/// Decodes a file. `buffer` is given the head of the picture; it sets the required format and
/// returns the memory for the pixels.
template <typename Buffer>
bool decode(const std::string& path, int scale, std::string& error, Buffer buffer) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) {
    error = path + ": " + systemError(errno);
    return false;
  }
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  bool good = png_image_begin_read_from_stdio(&image, file) != 0;
  if (good && (image.width > kLargestSide || image.height > kLargestSide)) {
    std::snprintf(image.message, sizeof image.message, "larger than 4096 x 4096 pixels");
    good = false;
  }
  const auto divisor = static_cast<png_uint_32>(scale);
  if (good && (image.width % divisor != 0 || image.height % divisor != 0)) {
    std::snprintf(image.message, sizeof image.message, "not a multiple of %d pixels each way",
                  scale);
    good = false;
  }
  if (good) {
    const Rows rows = buffer(image);
    good = png_image_finish_read(&image, nullptr, rows.first, rows.stride, nullptr) != 0;
  }
  if (!good) error = path + ": not a usable PNG picture: " + image.message;
  png_image_free(&image);
  std::fclose(file);
  return good;
}

/// Reads a file as rows of red, green, blue, alpha bytes without padding.
bool readRgba(const std::string& path, int scale, std::vector<std::uint8_t>& into, Size& size,
              std::string& error) {
  return decode(path, scale, error, [&](png_image& image) {
    image.format = PNG_FORMAT_RGBA;
    into.resize(PNG_IMAGE_SIZE(image));
    size = {static_cast<int>(image.width), static_cast<int>(image.height)};
    return Rows{into.data(), 0};
  });
}

/// Calls put(x, y, the four bytes of the pixel) for every pixel.
template <typename Put>
void eachPixel(const std::vector<std::uint8_t>& rgba, Size size, Put put) {
  const std::uint8_t* pixel = rgba.data();
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x, pixel += 4) put(x, y, pixel);
  }
}

}  // namespace

bool readPng(const std::string& path, Surface& into, std::string& error, int scale) {
  // A picture without alpha goes straight into the surface. One with alpha would be blended with a
  // background on that way, but its colours are needed as they are.
  std::vector<std::uint8_t> rgba;
  Surface read;
  Size size;
  const bool good = decode(path, scale, error, [&](png_image& image) {
    size = {static_cast<int>(image.width), static_cast<int>(image.height)};
    read = Surface(size.width / scale, size.height / scale, scale);
    if ((image.format & PNG_FORMAT_FLAG_ALPHA) == 0) {
      image.format = PNG_FORMAT_RGB;
      return Rows{read.row(0), static_cast<int>(read.stride())};
    }
    image.format = PNG_FORMAT_RGBA;
    rgba.resize(PNG_IMAGE_SIZE(image));
    return Rows{rgba.data(), 0};
  });
  if (!good) return false;
  if (!rgba.empty()) {
    eachPixel(rgba, size,
              [&](int x, int y, const std::uint8_t* p) { std::memcpy(read.row(y) + x * 3, p, 3); });
  }
  into = std::move(read);
  return true;
}

bool readPngPair(const std::string& path, Surface& onWhite, Surface& onBlack, std::string& error,
                 int scale) {
  std::vector<std::uint8_t> rgba;
  Size size;
  if (!readRgba(path, scale, rgba, size, error)) return false;
  Surface white(size.width / scale, size.height / scale, scale);
  Surface black(size.width / scale, size.height / scale, scale);
  white.clear(kWhite);
  eachPixel(rgba, size, [&](int x, int y, const std::uint8_t* p) {
    if (p[3] < 128) return;
    std::memcpy(white.row(y) + x * 3, p, 3);
    std::memcpy(black.row(y) + x * 3, p, 3);
  });
  onWhite = std::move(white);
  onBlack = std::move(black);
  return true;
}

bool readPngRgba(const std::string& path, std::vector<std::uint8_t>& into, Size& size,
                 std::string& error) {
  std::vector<std::uint8_t> rgba;
  Size read;
  if (!readRgba(path, 1, rgba, read, error)) return false;
  into = std::move(rgba);
  size = read;
  return true;
}

bool writePng(const std::string& path, const Surface& surface, std::string& error) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) {
    error = path + ": " + systemError(errno);
    return false;
  }
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(surface.pixelBounds().width);
  image.height = static_cast<png_uint_32>(surface.pixelBounds().height);
  image.format = PNG_FORMAT_RGB;
  const bool written =
      png_image_write_to_stdio(&image, file, 0, surface.row(0),
                               static_cast<png_int_32>(surface.stride()), nullptr) != 0;
  const bool closed = std::fclose(file) == 0;
  if (written && closed) return true;
  error = path + ": " + (written ? systemError(errno) : image.message);
  std::remove(path.c_str());
  return false;
}

}  // namespace platform
