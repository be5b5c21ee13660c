#include "platform/surface.h"

#include <algorithm>
#include <cstring>

#include "platform/vector_loops.h"

namespace platform {

namespace {

constexpr int kBytesPerPixel = 3;

std::size_t bytes(int pixels) {
  return static_cast<std::size_t>(pixels) * kBytesPerPixel;
}

// The rows are walked byte by byte in plain loops, and each returns whether it changed anything.

bool copyRow(std::uint8_t* __restrict to, const std::uint8_t* __restrict from, std::size_t count) {
  std::memcpy(to, from, count);
  return true;
}

VELLMORAN_VECTOR_LOOP
bool andRow(std::uint8_t* __restrict to, const std::uint8_t* __restrict from, std::size_t count) {
  std::uint8_t change = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const auto now = static_cast<std::uint8_t>(to[i] & from[i]);
    change = static_cast<std::uint8_t>(change | (to[i] ^ now));
    to[i] = now;
  }
  return change != 0;
}

VELLMORAN_VECTOR_LOOP
bool orRow(std::uint8_t* __restrict to, const std::uint8_t* __restrict from, std::size_t count) {
  std::uint8_t change = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const auto now = static_cast<std::uint8_t>(to[i] | from[i]);
    change = static_cast<std::uint8_t>(change | (to[i] ^ now));
    to[i] = now;
  }
  return change != 0;
}

VELLMORAN_VECTOR_LOOP
bool pairRow(std::uint8_t* __restrict to, const std::uint8_t* __restrict tile,
             const std::uint8_t* __restrict mask, std::size_t count) {
  std::uint8_t change = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const auto now = static_cast<std::uint8_t>((to[i] & tile[i]) | mask[i]);
    change = static_cast<std::uint8_t>(change | (to[i] ^ now));
    to[i] = now;
  }
  return change != 0;
}

// Most of what a redraw draws is there already, and is only read.
bool solidRow(std::uint8_t* to, const std::uint8_t* from, std::size_t count) {
  if (std::memcmp(to, from, count) == 0) return false;
  std::memcpy(to, from, count);
  return true;
}

using RowOperation = bool (*)(std::uint8_t*, const std::uint8_t*, std::size_t);

RowOperation rowOperation(std::uint32_t operation) {
  switch (operation) {
    case SRCCOPY:
      return copyRow;
    case SRCAND:
      return andRow;
    case SRCPAINT:
      return orRow;
    default:
      return nullptr;
  }
}

/// The pixels of a target box that lie on the target and have a pixel of the source behind them.
Rect copied(const Surface& target, const Rect& box, const Surface& source, int sourceX,
            int sourceY) {
  const Rect behind = moved(source.bounds(), box.left - sourceX, box.top - sourceY);
  return target.inPixels(intersection(intersection(box, target.bounds()), behind));
}

}  // namespace

// A stride of whole 16 bytes begins every row where a vector load likes it: plain `new` aligns
// to 16.
Surface::Surface(int width, int height, int scale)
    : width_(width),
      height_(height),
      scale_(scale),
      stride_((bytes(width * scale) + 15) / 16 * 16),
      pixels_(new std::uint8_t[stride_ * static_cast<std::size_t>(height * scale)]()) {}

Color Surface::pixel(int x, int y) const {
  if (!pixelBounds().contains({x, y})) return kBlack;
  const std::uint8_t* p = row(y) + bytes(x);
  return {p[0], p[1], p[2]};
}

void Surface::setPixel(int x, int y, Color color) {
  if (!pixelBounds().contains({x, y})) return;
  std::uint8_t* p = row(y) + bytes(x);
  p[0] = color.r;
  p[1] = color.g;
  p[2] = color.b;
}

void Surface::fillPixels(const Rect& pixels, Color color) {
  const Rect area = intersection(pixels, pixelBounds());
  if (area.empty()) return;
  std::uint8_t* first = row(area.top) + bytes(area.left);
  if (color.r == color.g && color.g == color.b) {
    std::memset(first, color.r, bytes(area.width));
  } else {
    for (std::uint8_t* p = first; p != first + bytes(area.width); p += kBytesPerPixel) {
      p[0] = color.r;
      p[1] = color.g;
      p[2] = color.b;
    }
  }
  for (int y = area.top + 1; y < area.bottom(); ++y) {
    std::memcpy(row(y) + bytes(area.left), first, bytes(area.width));
  }
}

Surface Surface::clone() const {
  Surface copy(width_, height_, scale_);
  if (!empty()) {
    std::memcpy(copy.row(0), row(0), stride_ * static_cast<std::size_t>(height_ * scale_));
  }
  return copy;
}

bool BitBlt(Surface& target, int x, int y, int width, int height, const Surface& source,
            int sourceX, int sourceY, std::uint32_t operation) {
  const RowOperation run = rowOperation(operation);
  const Rect area = copied(target, {x, y, width, height}, source, sourceX, sourceY);
  if (run == nullptr || area.empty()) return false;
  bool changed = false;
  const Point back = source.inPixels(Point{sourceX - x, sourceY - y});
  for (int row = area.top; row < area.bottom(); ++row) {
    changed |= run(target.row(row) + bytes(area.left),
                   source.row(row + back.y) + bytes(area.left + back.x), bytes(area.width));
  }
  return changed;
}

bool StretchBlt(Surface& target, int x, int y, int width, int height, const Surface& source,
                int sourceX, int sourceY, int sourceWidth, int sourceHeight,
                std::uint32_t operation) {
  if (width == sourceWidth && height == sourceHeight) {
    return BitBlt(target, x, y, width, height, source, sourceX, sourceY, operation);
  }
  const RowOperation run = rowOperation(operation);
  const Rect box = target.inPixels(Rect{x, y, width, height});
  const Rect from = source.inPixels(Rect{sourceX, sourceY, sourceWidth, sourceHeight});
  const Rect area = intersection(box, target.pixelBounds());
  if (run == nullptr || area.empty() || from.empty()) return false;
  bool changed = false;
  // The source pixel whose middle is nearest to the middle of the target pixel.
  const auto nearest = [](int offset, int size, int sourceSize) {
    return static_cast<int>((2LL * offset + 1) * sourceSize / (2LL * size));
  };
  for (int row = area.top; row < area.bottom(); ++row) {
    const int fromRow = from.top + nearest(row - box.top, box.height, from.height);
    if (fromRow < 0 || fromRow >= source.pixelBounds().height) continue;
    for (int column = area.left; column < area.right(); ++column) {
      const int fromColumn = from.left + nearest(column - box.left, box.width, from.width);
      if (fromColumn < 0 || fromColumn >= source.pixelBounds().width) continue;
      changed |=
          run(target.row(row) + bytes(column), source.row(fromRow) + bytes(fromColumn), bytes(1));
    }
  }
  return changed;
}

std::vector<PairRow> pairRows(const Surface& tile, const Surface& mask) {
  std::vector<PairRow> rows;
  const Rect all = tile.pixelBounds();
  const auto isClear = [&](int x, int y) {
    return tile.pixel(x, y) == kWhite && mask.pixel(x, y) == kBlack;
  };
  for (int y = 0; y < all.height; ++y) {
    int first = 0;
    int end = all.width;
    while (first < end && isClear(first, y)) ++first;
    while (end > first && isClear(end - 1, y)) --end;
    const bool solid = std::memcmp(tile.row(y) + bytes(first), mask.row(y) + bytes(first),
                                   bytes(end - first)) == 0;
    rows.push_back({static_cast<std::int16_t>(first), static_cast<std::int16_t>(end), solid});
  }
  return rows;
}

bool blitPair(Surface& target, int x, int y, int width, int height, const Surface& tile,
              const Surface& mask, std::span<const PairRow> rows) {
  const Rect area = copied(target, {x, y, width, height}, tile, 0, 0);
  if (area != copied(target, {x, y, width, height}, mask, 0, 0)) {
    const bool cut = BitBlt(target, x, y, width, height, tile, 0, 0, SRCAND);
    return BitBlt(target, x, y, width, height, mask, 0, 0, SRCPAINT) || cut;
  }
  bool changed = false;
  const Point place = target.inPixels(Point{x, y});
  for (int row = area.top; row < area.bottom(); ++row) {
    PairRow part{static_cast<std::int16_t>(area.left - place.x),
                 static_cast<std::int16_t>(area.right() - place.x), false};
    if (!rows.empty()) {
      const PairRow& known = rows[row - place.y];
      part = {std::max(part.first, known.first), std::min(part.end, known.end), known.solid};
      if (part.first >= part.end) continue;
    }
    std::uint8_t* const to = target.row(row) + bytes(place.x + part.first);
    const std::uint8_t* const white = tile.row(row - place.y) + bytes(part.first);
    const std::uint8_t* const black = mask.row(row - place.y) + bytes(part.first);
    const std::size_t count = bytes(part.end - part.first);
    changed |= part.solid ? solidRow(to, black, count) : pairRow(to, white, black, count);
  }
  return changed;
}

}  // namespace platform
