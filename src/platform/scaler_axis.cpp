#include "platform/scaler_axis.h"

#include <algorithm>

namespace platform {

ScalerAxis::ScalerAxis(int from, int to)
    : from_(from), to_(to), first_(static_cast<std::size_t>(to)) {
  const auto begin = [&](int i) { return static_cast<std::int64_t>(i) * from; };
  // The last pixel that pixel i takes of lies before the end of its stretch.
  const auto last = [&](int i) { return static_cast<int>((begin(i + 1) - 1) / to); };
  for (int i = 0; i < to; ++i) {
    first_[i] = static_cast<int>(begin(i) / to);
    taps_ = std::max(taps_, last(i) - first(i) + 1);
  }
  const auto taps = static_cast<std::size_t>(taps_);
  parts_.resize(taps * static_cast<std::size_t>(to));
  for (int i = 0; i < to; ++i) {
    std::uint16_t* const parts = &parts_[static_cast<std::size_t>(i) * taps];
    // Rounding what is left keeps the sum exact.
    int left = 256;
    for (int pixel = first(i); left > 0; ++pixel) {
      const std::int64_t behind =
          std::max<std::int64_t>(0, begin(i + 1) - static_cast<std::int64_t>(pixel + 1) * to);
      const int rest = static_cast<int>((behind * 256 + from / 2) / from);
      parts[pixel - first(i)] = static_cast<std::uint16_t>(left - rest);
      left = rest;
    }
    // Near the end the pixels that nothing is taken of would lie beyond the picture.
    const int back = first(i) + taps_ - from;
    if (back <= 0) continue;
    first_[i] -= back;
    std::rotate(parts, parts + taps_ - back, parts + taps_);
  }
}

ScalerAxis::Range ScalerAxis::covered(Range picture) const {
  const auto down = [this](int at) { return static_cast<std::int64_t>(at) * to_ / from_; };
  const auto up = [this](int at) {
    return (static_cast<std::int64_t>(at) * to_ + from_ - 1) / from_;
  };
  return {static_cast<int>(down(picture.begin)), static_cast<int>(up(picture.end))};
}

}  // namespace platform
