#include "platform/scaler.h"

#include <algorithm>
#include <cstring>

namespace platform {

namespace {

constexpr std::size_t kPixel = 4;

// Two pixels mixed, `share` parts of 256 of the second. The four bytes of a pixel are worked on as two
// pairs, each byte with room above it.
std::uint32_t blended(std::uint32_t a, std::uint32_t b, std::uint32_t share) {
  constexpr std::uint32_t kPair = 0x00FF00FF, kHalf = 0x00800080;
  const std::uint32_t rest = 256 - share;
  const std::uint32_t low = ((a & kPair) * rest + (b & kPair) * share + kHalf) >> 8;
  const std::uint32_t high = (a >> 8 & kPair) * rest + (b >> 8 & kPair) * share + kHalf;
  return (low & kPair) | (high & ~kPair);
}

}  // namespace

Scaler::Scaler(Size picture, Size display) : picture_(picture) {
  const auto fits = [&](int factor) {
    return picture.width * factor <= display.width && picture.height * factor <= display.height;
  };
  int factor = 1;
  while (fits(factor + 1)) ++factor;
  if (fits(factor) && picture.height * factor * 10 >= display.height * 9) {
    whole_ = true;
    place_.width = picture.width * factor;
    place_.height = picture.height * factor;
  } else if (static_cast<std::int64_t>(display.width) * picture.height <=
             static_cast<std::int64_t>(display.height) * picture.width) {
    place_.width = display.width;
    place_.height = std::max(1, display.width * picture.height / picture.width);
  } else {
    place_.width = std::max(1, display.height * picture.width / picture.height);
    place_.height = display.height;
  }
  place_.left = (display.width - place_.width) / 2;
  place_.top = (display.height - place_.height) / 2;
  columns_ = taps(picture.width, place_.width);
  rows_ = taps(picture.height, place_.height);
  packed_.resize(static_cast<std::size_t>(picture.width) + 1);
  for (auto& row : stretched_) {
    row.resize(static_cast<std::size_t>(place_.width));
  }
}

// Pixel i of `to` covers the stretch i * from / to .. (i + 1) * from / to of the picture. Where a
// picture shrinks that is more than two pixels; the two in its middle stand for them.
std::vector<Scaler::Tap> Scaler::taps(int from, int to) {
  std::vector<Tap> result(static_cast<std::size_t>(to));
  for (int i = 0; i < to; ++i) {
    Tap& tap = result[static_cast<std::size_t>(i)];
    const std::int64_t begin = static_cast<std::int64_t>(i) * from;
    const std::int64_t end = begin + from;
    if (to >= from) {
      tap.first = static_cast<int>(begin / to);
      const std::int64_t beyond = end - static_cast<std::int64_t>(tap.first + 1) * to;
      if (beyond > 0) tap.share = static_cast<int>((beyond * 256 + from / 2) / from);
    } else {
      const std::int64_t middle = std::max<std::int64_t>(0, (begin + end - to) * 128 / to);
      tap.first = static_cast<int>(middle >> 8);
      tap.share = static_cast<int>(middle & 255);
    }
    if (tap.first >= from - 1) tap = {from - 1, 0};
  }
  return result;
}

Rect Scaler::covered(const Rect& picturePart) const {
  const Rect part = intersection(picturePart, {0, 0, picture_.width, picture_.height});
  if (part.empty()) return {};
  const auto range = [](const std::vector<Tap>& all, int from, int to) {
    const auto begin = std::find_if(all.begin(), all.end(), [from](const Tap& tap) {
      return tap.first >= from || (tap.first == from - 1 && tap.share > 0);
    });
    const auto end =
        std::find_if(begin, all.end(), [to](const Tap& tap) { return tap.first >= to; });
    return std::pair(static_cast<int>(begin - all.begin()), static_cast<int>(end - all.begin()));
  };
  const auto [left, right] = range(columns_, part.left, part.right());
  const auto [top, bottom] = range(rows_, part.top, part.bottom());
  return {place_.left + left, place_.top + top, right - left, bottom - top};
}

// Row `row` of the picture at the display's width, in the display's order of bytes. The two rows
// that were made last are kept: rows of the display that lie together share them.
const std::uint32_t* Scaler::stretchedRow(const Surface& picture, int row, const Rect& part,
                                          const PixelMemory& display) {
  const int slot = row & 1;
  std::uint32_t* const to = stretched_[slot].data();
  if (stretchedRows_[slot] == row) return to;
  stretchedRows_[slot] = row;
  const std::uint8_t* const from = picture.row(row);
  const int red = display.red, green = display.green, blue = display.blue;
  const auto begin = static_cast<std::size_t>(part.left - place_.left);
  const auto end = begin + static_cast<std::size_t>(part.width);
  const bool same = place_.width == picture_.width;
  std::uint32_t* const packed = same ? to : packed_.data();
  const auto first = static_cast<std::size_t>(columns_[begin].first);
  const auto last = std::min(static_cast<std::size_t>(columns_[end - 1].first) + 2,
                             static_cast<std::size_t>(picture_.width));
  for (std::size_t x = first; x < last; ++x) {
    const std::uint8_t* const a = from + x * 3;
    packed[x] =
        std::uint32_t{a[0]} << red | std::uint32_t{a[1]} << green | std::uint32_t{a[2]} << blue;
  }
  if (same) return to;
  for (std::size_t x = begin; x < end; ++x) {
    const Tap tap = columns_[x];
    const std::uint32_t* const a = packed + tap.first;
    to[x] = blended(a[0], a[1], static_cast<std::uint32_t>(tap.share));
  }
  return to;
}

void Scaler::scale(const Surface& picture, const Rect& wanted, const PixelMemory& display) {
  const Rect part = intersection(wanted, place_);
  if (part.empty()) return;
  stretchedRows_[0] = stretchedRows_[1] = -1;
  const auto offset = static_cast<std::size_t>(part.left - place_.left);
  const std::size_t bytes = static_cast<std::size_t>(part.width) * kPixel;
  for (int y = part.top; y < part.bottom(); ++y) {
    const Tap tap = rows_[static_cast<std::size_t>(y - place_.top)];
    std::uint8_t* __restrict const to = display.pixels +
                                        display.stride * static_cast<std::size_t>(y) +
                                        static_cast<std::size_t>(part.left) * kPixel;
    const auto* const a = reinterpret_cast<const std::uint8_t*>(
        stretchedRow(picture, tap.first, part, display) + offset);
    if (tap.share == 0) {
      std::memcpy(to, a, bytes);
      continue;
    }
    const auto* const b = reinterpret_cast<const std::uint8_t*>(
        stretchedRow(picture, tap.first + 1, part, display) + offset);
    const auto share = static_cast<std::uint16_t>(tap.share);
    const auto rest = static_cast<std::uint16_t>(256 - tap.share);
    for (std::size_t i = 0; i < bytes; ++i) {
      const auto sum = static_cast<std::uint16_t>(a[i] * rest + b[i] * share + 128);
      to[i] = static_cast<std::uint8_t>(sum >> 8);
    }
  }
}

Point Scaler::pictured(Point onDisplay) const {
  const auto back = [](int at, int begin, int from, int to) {
    const std::int64_t inside = std::clamp(at - begin, 0, to - 1);
    return static_cast<int>(inside * from / to);
  };
  return {back(onDisplay.x, place_.left, picture_.width, place_.width),
          back(onDisplay.y, place_.top, picture_.height, place_.height)};
}

}  // namespace platform
