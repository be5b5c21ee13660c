#include "platform/scaler.h"

#include <algorithm>
#include <cstring>

namespace platform {

namespace {

constexpr std::size_t kPixel = 4;
constexpr Size kUnits{800, 600};

/// Where a picture lies on a display, and whether a pixel of it takes a whole number of pixels there.
struct Placed {
  Rect place;
  bool whole;
};

Placed placed(Size picture, Size display) {
  Placed result{{}, false};
  Rect& place = result.place;
  const auto fits = [&](int factor) {
    return picture.width * factor <= display.width && picture.height * factor <= display.height;
  };
  int factor = 1;
  while (fits(factor + 1)) ++factor;
  if (fits(factor) && picture.height * factor * 10 >= display.height * 9) {
    result.whole = true;
    place.width = picture.width * factor;
    place.height = picture.height * factor;
  } else if (static_cast<std::int64_t>(display.width) * picture.height <=
             static_cast<std::int64_t>(display.height) * picture.width) {
    place.width = display.width;
    place.height = std::max(1, display.width * picture.height / picture.width);
  } else {
    place.width = std::max(1, display.height * picture.width / picture.height);
    place.height = display.height;
  }
  place.left = (display.width - place.width) / 2;
  place.top = (display.height - place.height) / 2;
  return result;
}

/// Pixels of three bytes in the display's order of bits.
void pack(std::uint32_t* to, const std::uint8_t* from, std::size_t count,
          const PixelMemory& display) {
  const int red = display.red, green = display.green, blue = display.blue;
  std::size_t i = 0;
  if (red == 16 && green == 8 && blue == 0) {
    // The usual order: four bytes at a time, as long as a fourth one follows.
    for (; i + 1 < count; ++i) {
      std::uint32_t four;
      std::memcpy(&four, from + 3 * i, sizeof four);
      to[i] = __builtin_bswap32(four) >> 8;
    }
  }
  for (; i < count; ++i) {
    const std::uint8_t* const p = from + 3 * i;
    to[i] = std::uint32_t{p[0]} << red | std::uint32_t{p[1]} << green | std::uint32_t{p[2]} << blue;
  }
}

// The four bytes of a pixel are worked on as two pairs, each byte with room above it.
constexpr std::uint32_t kPair = 0x00FF00FF;
constexpr std::uint32_t kHalf = 0x00800080;

// Loops over bytes, plain enough for the compiler to make vector code of them.

void mixRows(std::uint8_t* __restrict to, const std::uint8_t* __restrict a,
             const std::uint8_t* __restrict b, std::uint16_t share, std::size_t bytes) {
  const auto rest = static_cast<std::uint16_t>(256 - share);
  for (std::size_t i = 0; i < bytes; ++i) {
    to[i] = static_cast<std::uint8_t>(
        static_cast<std::uint16_t>(a[i] * rest + b[i] * share + 128) >> 8);
  }
}

void addRow(std::uint16_t* __restrict to, const std::uint8_t* __restrict from, std::uint16_t share,
            std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; ++i)
    to[i] = static_cast<std::uint16_t>(to[i] + from[i] * share);
}

void mixBorders(std::uint8_t* __restrict to, const std::uint8_t* __restrict from,
                const std::uint16_t* __restrict shares, std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; ++i) {
    const auto rest = static_cast<std::uint16_t>(256 - shares[i]);
    const auto sum =
        static_cast<std::uint16_t>(from[i] * rest + from[i + kPixel] * shares[i] + 128);
    to[i] = static_cast<std::uint8_t>(sum >> 8);
  }
}

}  // namespace

int scaleFor(Size desktop) {
  return placed(kUnits, desktop).place.width * 4 > kUnits.width * 5 ? 2 : 1;
}

Scaler::Scaler(Size picture, Size display, int scale)
    : scale_(scale),
      picture_{picture.width * scale, picture.height * scale},
      place_(placed(picture_, display).place),
      whole_(placed(picture_, display).whole),
      columns_(picture_.width, place_.width),
      rows_(picture_.height, place_.height),
      packed_(2 * static_cast<std::size_t>(picture_.width)),
      stretched_(static_cast<std::size_t>(rows_.taps())),
      stretchedRows_(stretched_.size()) {
  for (auto& row : stretched_) row.resize(static_cast<std::size_t>(place_.width));
  taken_.reserve(stretched_.size());
  if (rows_.taps() > 2) sums_.resize(kPixel * static_cast<std::size_t>(place_.width));
  if (!columns_.grows()) return;
  borders_.resize(kPixel * static_cast<std::size_t>(picture_.width));
  sources_.resize(static_cast<std::size_t>(place_.width));
  for (int x = 0; x < place_.width; ++x) {
    const int first = columns_.first(x);
    const auto parts = columns_.parts(x);
    int& source = sources_[static_cast<std::size_t>(x)];
    source = first;
    if (parts.size() == 1 || parts[1] == 0) continue;
    if (parts[0] == 0) {
      source = first + 1;
      continue;
    }
    source = picture_.width + first;
    std::fill_n(&borders_[kPixel * static_cast<std::size_t>(first)], kPixel, parts[1]);
  }
}

Rect Scaler::covered(const Rect& picturePart) const {
  const Rect part =
      intersection(picturePart, {0, 0, picture_.width / scale_, picture_.height / scale_});
  if (part.empty()) return {};
  const auto [left, right] = columns_.covered({part.left * scale_, part.right() * scale_});
  const auto [top, bottom] = rows_.covered({part.top * scale_, part.bottom() * scale_});
  return {place_.left + left, place_.top + top, right - left, bottom - top};
}

// Columns `begin` to `end - 1` of a row that is in `packed_`, where each is a pixel of the picture or
// lies on the border of two.
void Scaler::grow(std::uint32_t* to, int begin, int end) {
  const auto first = static_cast<std::size_t>(columns_.first(begin));
  const auto last = static_cast<std::size_t>(columns_.first(end - 1) + columns_.taps() - 1);
  const auto width = static_cast<std::size_t>(picture_.width);
  if (columns_.taps() > 1) {
    mixBorders(reinterpret_cast<std::uint8_t*>(&packed_[width + first]),
               reinterpret_cast<const std::uint8_t*>(&packed_[first]), &borders_[kPixel * first],
               kPixel * (last - first));
  }
  const std::uint32_t* const from = packed_.data();
  const int* const sources = sources_.data();
  for (int x = begin; x < end; ++x) to[x] = from[sources[x]];
}

// The same where every column takes of several pixels.
void Scaler::shrink(std::uint32_t* to, int begin, int end) const {
  for (int x = begin; x < end; ++x) {
    const std::uint32_t* from = &packed_[static_cast<std::size_t>(columns_.first(x))];
    std::uint32_t low = kHalf, high = kHalf;
    for (const std::uint32_t part : columns_.parts(x)) {
      low += (*from & kPair) * part;
      high += (*from++ >> 8 & kPair) * part;
    }
    to[x] = (low >> 8 & kPair) | (high & ~kPair);
  }
}

// Row `row` of the picture at the display's width, in the display's order of bits. The rows that were
// made last are kept: rows of the display that lie together share them.
const std::uint32_t* Scaler::stretchedRow(const Surface& picture, int row, const Rect& part,
                                          const PixelMemory& display) {
  const std::size_t slot = static_cast<std::size_t>(row) % stretched_.size();
  std::uint32_t* const to = stretched_[slot].data();
  if (stretchedRows_[slot] == row) return to;
  stretchedRows_[slot] = row;
  const int begin = part.left - place_.left;
  const int end = begin + part.width;
  const int first = columns_.first(begin);
  const int last = columns_.first(end - 1) + columns_.taps();
  const bool same = place_.width == picture_.width;
  pack((same ? to : packed_.data()) + first, picture.row(row) + 3 * first,
       static_cast<std::size_t>(last - first), display);
  if (same) return to;
  columns_.grows() ? grow(to, begin, end) : shrink(to, begin, end);
  return to;
}

void Scaler::scale(const Surface& picture, const Rect& wanted, const PixelMemory& display) {
  const Rect part = intersection(wanted, place_);
  if (part.empty()) return;
  std::fill(stretchedRows_.begin(), stretchedRows_.end(), -1);
  const auto offset = static_cast<std::size_t>(part.left - place_.left);
  const std::size_t bytes = static_cast<std::size_t>(part.width) * kPixel;
  for (int y = part.top; y < part.bottom(); ++y) {
    std::uint8_t* const to = display.pixels + display.stride * static_cast<std::size_t>(y) +
                             static_cast<std::size_t>(part.left) * kPixel;
    taken_.clear();
    int row = rows_.first(y - place_.top);
    for (const std::uint16_t share : rows_.parts(y - place_.top)) {
      if (share > 0) {
        const auto* const from = reinterpret_cast<const std::uint8_t*>(
            stretchedRow(picture, row, part, display) + offset);
        taken_.push_back({from, share});
      }
      ++row;
    }
    if (taken_.size() == 1) {
      std::memcpy(to, taken_[0].row, bytes);
    } else if (taken_.size() == 2) {
      mixRows(to, taken_[0].row, taken_[1].row, taken_[1].share, bytes);
    } else {
      std::fill_n(sums_.begin(), bytes, std::uint16_t{128});
      for (const auto& [from, share] : taken_) addRow(sums_.data(), from, share, bytes);
      for (std::size_t i = 0; i < bytes; ++i) to[i] = static_cast<std::uint8_t>(sums_[i] >> 8);
    }
  }
}

Point Scaler::pictured(Point onDisplay) const {
  const auto back = [](int at, int begin, int from, int to) {
    const std::int64_t inside = std::clamp(at - begin, 0, to - 1);
    return static_cast<int>(inside * from / to);
  };
  return {back(onDisplay.x, place_.left, picture_.width / scale_, place_.width),
          back(onDisplay.y, place_.top, picture_.height / scale_, place_.height)};
}

}  // namespace platform
