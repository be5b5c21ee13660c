#include "platform/scaler.h"

#include <algorithm>
#include <cstring>

#include "platform/display.h"
#include "platform/vector_loops.h"

namespace platform {

namespace {

constexpr std::size_t kPixel = 4;
constexpr Size kUnits{kScreenWidth, kScreenHeight};

/// Where a picture is on a display, and whether a pixel of it takes a whole number of pixels there.
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

// The usual order of bits: blue in the lowest byte. Four pixels at a time, as long as the four bytes
// behind them are pixels too; returns how many it did.
VELLMORAN_VECTOR_LOOP
std::size_t packUsual(std::uint32_t* to, const std::uint8_t* from, std::size_t count) {
  using Bytes [[gnu::vector_size(16)]] = std::uint8_t;
  constexpr Bytes kNothing{};
  std::size_t i = 0;
  for (; i + 6 <= count; i += 4) {
    Bytes four;
    std::memcpy(&four, from + 3 * i, sizeof four);
    four = __builtin_shufflevector(four, kNothing, 2, 1, 0, 16, 5, 4, 3, 16, 8, 7, 6, 16, 11, 10, 9,
                                   16);
    std::memcpy(to + i, &four, sizeof four);
  }
  return i;
}

/// Pixels of three bytes in the display's order of bits.
void pack(std::uint32_t* to, const std::uint8_t* from, std::size_t count,
          const PixelMemory& display) {
  const int red = display.red, green = display.green, blue = display.blue;
  std::size_t i = 0;
  if (red == 16 && green == 8 && blue == 0) i = packUsual(to, from, count);
  for (; i < count; ++i) {
    const std::uint8_t* const p = from + 3 * i;
    to[i] = std::uint32_t{p[0]} << red | std::uint32_t{p[1]} << green | std::uint32_t{p[2]} << blue;
  }
}

VELLMORAN_VECTOR_LOOP
void mixRows(std::uint8_t* __restrict to, const std::uint8_t* __restrict a,
             const std::uint8_t* __restrict b, std::uint16_t share, std::size_t bytes) {
  const auto rest = static_cast<std::uint16_t>(256 - share);
  for (std::size_t i = 0; i < bytes; ++i) {
    to[i] = static_cast<std::uint8_t>(
        static_cast<std::uint16_t>(a[i] * rest + b[i] * share + 128) >> 8);
  }
}

// Sums of bytes times their parts of 256, which begin with a half so that they round.
constexpr std::uint16_t kHalf = 128;

VELLMORAN_VECTOR_LOOP
void addColumns(std::uint16_t* __restrict to, const std::uint8_t* __restrict from,
                const std::uint16_t* __restrict parts, std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; ++i) {
    to[i] = static_cast<std::uint16_t>(to[i] + from[i] * parts[i]);
  }
}

VELLMORAN_VECTOR_LOOP
void addRow(std::uint16_t* __restrict to, const std::uint8_t* __restrict from, std::uint16_t share,
            std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; ++i) {
    to[i] = static_cast<std::uint16_t>(to[i] + from[i] * share);
  }
}

VELLMORAN_VECTOR_LOOP
void wholes(std::uint8_t* __restrict to, const std::uint16_t* __restrict from, std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; ++i) to[i] = static_cast<std::uint8_t>(from[i] >> 8);
}

VELLMORAN_VECTOR_LOOP
void mixBorders(std::uint8_t* __restrict to, const std::uint8_t* __restrict from,
                const std::uint8_t* __restrict shares, std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; ++i) {
    const auto rest = static_cast<std::uint16_t>(256 - shares[i]);
    const auto sum =
        static_cast<std::uint16_t>(from[i] * rest + from[i + kPixel] * shares[i] + 128);
    to[i] = static_cast<std::uint8_t>(sum >> 8);
  }
}

void pick(std::uint32_t* __restrict to, const std::uint32_t* __restrict from,
          const std::uint16_t* __restrict sources, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) to[i] = from[sources[i]];
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
      kept_(stretched_.size()),
      lines_(static_cast<std::size_t>(picture_.height), -1),
      sums_(kPixel * static_cast<std::size_t>(place_.width)) {
  for (auto& row : stretched_) row.resize(static_cast<std::size_t>(place_.width));
  taken_.reserve(stretched_.size());
  for (int y = place_.height; y-- > 0;) {
    int row = rows_.first(y);
    for (const std::uint16_t share : rows_.parts(y)) {
      if (share == 256) lines_[row] = place_.top + y;
      ++row;
    }
  }
  columns_.grows() ? prepareGrowing() : prepareShrinking();
}

void Scaler::prepareGrowing() {
  borders_.resize(kPixel * static_cast<std::size_t>(picture_.width));
  sources_.resize(static_cast<std::size_t>(place_.width));
  for (int x = 0; x < place_.width; ++x) {
    const auto first = static_cast<std::size_t>(columns_.first(x));
    const auto parts = columns_.parts(x);
    std::size_t source = first;
    if (parts.size() > 1 && parts[0] == 0) {
      ++source;
    } else if (parts.size() > 1 && parts[1] > 0) {
      source += static_cast<std::size_t>(picture_.width);
      std::fill_n(&borders_[kPixel * first], kPixel, static_cast<std::uint8_t>(parts[1]));
    }
    sources_[x] = static_cast<std::uint16_t>(source);
  }
}

void Scaler::prepareShrinking() {
  const auto width = static_cast<std::size_t>(place_.width);
  const auto taps = static_cast<std::size_t>(columns_.taps());
  sources_.resize(taps * width);
  parts_.resize(taps * width * kPixel);
  picked_.resize(width);
  for (std::size_t x = 0; x < width; ++x) {
    const int column = static_cast<int>(x);
    for (std::size_t tap = 0; tap < taps; ++tap) {
      const std::size_t at = tap * width + x;
      sources_[at] = static_cast<std::uint16_t>(columns_.first(column) + static_cast<int>(tap));
      std::fill_n(&parts_[at * kPixel], kPixel, columns_.parts(column)[tap]);
    }
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
// is on the border of two.
void Scaler::grow(std::uint32_t* to, int begin, int end) {
  const auto first = static_cast<std::size_t>(columns_.first(begin));
  const auto last = static_cast<std::size_t>(columns_.first(end - 1) + columns_.taps() - 1);
  const auto width = static_cast<std::size_t>(picture_.width);
  if (columns_.taps() > 1) {
    mixBorders(reinterpret_cast<std::uint8_t*>(&packed_[width + first]),
               reinterpret_cast<const std::uint8_t*>(&packed_[first]), &borders_[kPixel * first],
               kPixel * (last - first));
  }
  pick(to + begin, packed_.data(), &sources_[begin], static_cast<std::size_t>(end - begin));
}

// The same where a column takes of several pixels: one of each column at a time.
void Scaler::shrink(std::uint32_t* to, int begin, int end) {
  const auto count = static_cast<std::size_t>(end - begin);
  std::fill_n(sums_.begin(), kPixel * count, kHalf);
  for (std::size_t at = static_cast<std::size_t>(begin); at < sources_.size();
       at += picked_.size()) {
    pick(picked_.data(), packed_.data(), &sources_[at], count);
    addColumns(sums_.data(), reinterpret_cast<const std::uint8_t*>(picked_.data()),
               &parts_[kPixel * at], kPixel * count);
  }
  wholes(reinterpret_cast<std::uint8_t*>(to + begin), sums_.data(), kPixel * count);
}

std::uint32_t* Scaler::lineOf(const PixelMemory& display, int y) const {
  return reinterpret_cast<std::uint32_t*>(
             display.pixels + display.stride * static_cast<std::size_t>(y - display.top)) +
         place_.left;
}

// Row `row` of the picture at the display's width, in the display's order of bits. The rows that were
// made last are kept: rows of the display that lie together share them. A row that has a line of the
// display to itself is made there.
const std::uint32_t* Scaler::stretchedRow(const Surface& picture, int row, const Rect& part,
                                          const PixelMemory& display) {
  const std::size_t slot = static_cast<std::size_t>(row) % stretched_.size();
  if (kept_[slot].row == row) return kept_[slot].pixels;
  const int line = lines_[row];
  std::uint32_t* const to =
      line >= part.top && line < part.bottom() ? lineOf(display, line) : stretched_[slot].data();
  kept_[slot] = {row, to};
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
  std::fill(kept_.begin(), kept_.end(), Kept{});
  const auto offset = static_cast<std::size_t>(part.left - place_.left);
  const std::size_t bytes = static_cast<std::size_t>(part.width) * kPixel;
  for (int y = part.top; y < part.bottom(); ++y) {
    std::uint8_t* const to = reinterpret_cast<std::uint8_t*>(lineOf(display, y) + offset);
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
      if (taken_[0].row != to) std::memcpy(to, taken_[0].row, bytes);
    } else if (taken_.size() == 2) {
      mixRows(to, taken_[0].row, taken_[1].row, taken_[1].share, bytes);
    } else {
      std::fill_n(sums_.begin(), bytes, kHalf);
      for (const auto& [from, share] : taken_) addRow(sums_.data(), from, share, bytes);
      wholes(to, sums_.data(), bytes);
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
