#include "platform/browser/prediction.h"

#include <algorithm>

namespace platform {

namespace {

/// What the neighbours of byte `at` predict for it. Beyond the left and upper rim is 0.
int expected(const std::uint8_t* at, bool first, bool top, int channels, std::ptrdiff_t stride) {
  const int left = first ? 0 : at[-channels];
  const int above = top ? 0 : at[-stride];
  const int between = first || top ? 0 : at[-stride - channels];
  return std::clamp(left + above - between, std::min(left, above), std::max(left, above));
}

void lessGreen(std::uint8_t* pixel, int sign) {
  pixel[0] = static_cast<std::uint8_t>(pixel[0] - sign * pixel[1]);
  pixel[2] = static_cast<std::uint8_t>(pixel[2] - sign * pixel[1]);
}

}  // namespace

void predict(std::vector<std::uint8_t>& pixels, Size size, int channels) {
  for (std::size_t i = 0; i < pixels.size(); i += static_cast<std::size_t>(channels)) {
    lessGreen(&pixels[i], 1);
  }
  // From the end, so that the neighbours still have their own values.
  const std::ptrdiff_t stride = std::ptrdiff_t{size.width} * channels;
  for (int y = size.height - 1; y >= 0; --y) {
    for (std::ptrdiff_t x = stride - 1; x >= 0; --x) {
      std::uint8_t* const at = pixels.data() + y * stride + x;
      *at = static_cast<std::uint8_t>(*at - expected(at, x < channels, y == 0, channels, stride));
    }
  }
}

void restore(std::vector<std::uint8_t>& pixels, Size size, int channels) {
  const std::ptrdiff_t stride = std::ptrdiff_t{size.width} * channels;
  for (int y = 0; y < size.height; ++y) {
    for (std::ptrdiff_t x = 0; x < stride; ++x) {
      std::uint8_t* const at = pixels.data() + y * stride + x;
      *at = static_cast<std::uint8_t>(*at + expected(at, x < channels, y == 0, channels, stride));
    }
  }
  for (std::size_t i = 0; i < pixels.size(); i += static_cast<std::size_t>(channels)) {
    lessGreen(&pixels[i], -1);
  }
}

}  // namespace platform
