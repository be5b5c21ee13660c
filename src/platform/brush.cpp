#include "platform/brush.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/utf8.h"

namespace platform {

namespace {
constexpr Color kWithoutSkin{226, 205, 160};
}

void Brush::darken(const Rect& rect) const {
  const Rect area = target_.inPixels(intersection(rect, clip_));
  for (int y = area.top; y < area.bottom(); ++y) {
    std::uint8_t* p = target_.row(y) + static_cast<std::size_t>(area.left) * 3;
    for (int i = 0; i < area.width * 3; ++i) p[i] = static_cast<std::uint8_t>(p[i] - p[i] / 4);
  }
}

void Brush::fillPixels(const Rect& pixels, Color color) const {
  target_.fillPixels(intersection(pixels, target_.inPixels(clip_)), color);
}

void Brush::edges(const Rect& r, Color topLeft, Color bottomRight) const {
  if (r.empty()) return;
  fill({r.left, r.top, r.width, 1}, topLeft);
  fill({r.left, r.top, 1, r.height}, topLeft);
  fill({r.left, r.bottom() - 1, r.width, 1}, bottomRight);
  fill({r.right() - 1, r.top, 1, r.height}, bottomRight);
}

void Brush::look(const Rect& rect, Look look) const {
  const LookDesign& design = lookDesign(look);
  if (!design.hollow) {
    within(rect).patch(rect, look);
    return;
  }
  const int rim = design.rim;
  const int between = rect.height - 2 * rim;
  within({rect.left, rect.top, rect.width, rim}).patch(rect, look);
  within({rect.left, rect.top + rim, rim, between}).patch(rect, look);
  within({rect.right() - rim, rect.top + rim, rim, between}).patch(rect, look);
  within({rect.left, rect.bottom() - rim, rect.width, rim}).patch(rect, look);
}

void Brush::patch(const Rect& rect, Look look) const {
  if (clip_.empty()) return;
  const LookDesign& design = lookDesign(look);
  const Surface& source = skin_[look];
  if (source.empty()) {  // only in the message that the pictures are missing
    fill(rect, kWithoutSkin);
    return;
  }
  const int left = std::min(design.left, rect.width / 2);
  const int right = std::min(design.right, rect.width - left);
  const int top = std::min(design.top, rect.height / 2);
  const int bottom = std::min(design.bottom, rect.height - top);
  const Rect middle{design.left, design.top, source.width() - design.left - design.right,
                    source.height() - design.top - design.bottom};

  const auto copy = [&](int x, int y, const Rect& part) {
    const Rect area = intersection({x, y, part.width, part.height}, clip_);
    if (area.empty()) return;
    BitBlt(target_, area.left, area.top, area.width, area.height, source, part.left + area.left - x,
           part.top + area.top - y, SRCCOPY);
  };
  const auto rows = [&](int y, int from, int height) {
    copy(rect.left, y, {0, from, left, height});
    const int end = rect.right() - right;
    for (int x = rect.left + left; x < end; x += middle.width) {
      copy(x, y, {middle.left, from, std::min(middle.width, end - x), height});
    }
    copy(end, y, {source.width() - right, from, right, height});
  };

  rows(rect.top, 0, top);
  const int end = rect.bottom() - bottom;
  const int begin = rect.top + top;
  if (design.shaded) {
    for (int y = begin; y < end; ++y) {
      rows(y, middle.top + (y - begin) * middle.height / (end - begin), 1);
    }
  } else {
    for (int y = begin; y < end; y += middle.height) {
      rows(y, middle.top, std::min(middle.height, end - y));
    }
  }
  rows(end, source.height() - bottom, bottom);
}

void Brush::line(Point from, Point to, Color color) const {
  const bool steep = std::abs(to.y - from.y) > std::abs(to.x - from.x);
  if (steep ? from.y > to.y : from.x > to.x) std::swap(from, to);
  // `along` runs over the longer side, `across` over the shorter, two units thick. The line goes
  // through the middle of the unit at `from`, wherever in it a row of pixels lies.
  const int scale = target_.scale();
  const int length = steep ? to.y - from.y : to.x - from.x;
  const int rise = steep ? to.x - from.x : to.y - from.y;
  const Point start = target_.inPixels(from);
  for (int along = 0; along < (length + 1) * scale; ++along) {
    int across = 0;
    if (length > 0) {
      const int doubled = (2 * along - scale + 1) * rise + length;
      across = doubled / (2 * length) - (doubled % (2 * length) < 0 ? 1 : 0);
    }
    const Rect dot = steep ? Rect{start.x + across - scale, start.y + along, 2 * scale, 1}
                           : Rect{start.x + along, start.y + across - scale, 1, 2 * scale};
    fillPixels(dot, color);
  }
}

void Brush::arrow(const Rect& rect, bool down, Color color) const {
  constexpr int kRows = 4;
  const int scale = target_.scale();
  const Point first = target_.inPixels(
      Point{rect.left + (rect.width - 1) / 2, rect.top + (rect.height - kRows) / 2});
  for (int i = 0; i < kRows * scale; ++i) {
    const int fromTip = down ? kRows * scale - 1 - i : i;
    const int width = 2 * fromTip + 2 - scale;
    fillPixels({first.x + (scale - width) / 2, first.y + i, width, 1}, color);
  }
}

void Brush::picture(const Rect& place, const Surface& source) const {
  const Rect own{place.left + (place.width - source.width()) / 2,
                 place.top + (place.height - source.height()) / 2, source.width(), source.height()};
  const Rect area = intersection(own, clip_);
  BitBlt(target_, area.left, area.top, area.width, area.height, source, area.left - own.left,
         area.top - own.top, SRCCOPY);
}

void Brush::text(int x, int y, std::string_view text, FontSize size, Color color) const {
  if (color == kYellow) {
    constexpr Point kRim[] = {{-1, -1}, {0, -1}, {1, -1}, {-1, 0}, {1, 0}, {-1, 1}, {0, 1}, {1, 1}};
    for (const Point& p : kRim) font_.draw(target_, clip_, x + p.x, y + p.y, text, size, kInk);
  }
  font_.draw(target_, clip_, x, y, text, size, color);
}

void Brush::line(const Rect& rect, std::string_view caption, FontSize size, Color color,
                 Align align) const {
  int x = rect.left;
  if (align == Align::centre) {
    // Captions keep their odd blanks, but are centred by what is seen of them.
    while (caption.ends_with(' ')) caption.remove_suffix(1);
    while (caption.starts_with(' ')) caption.remove_prefix(1);
  }
  if (align != Align::left) {
    const int room = rect.width - font_.width(caption, size);
    x += align == Align::right ? room : room / 2;
  }
  text(x, rect.top + (rect.height - lineHeight(size)) / 2, caption, size, color);
}

void Brush::caption(const Rect& key, std::string_view text, FontSize size, Color color) const {
  constexpr int kRoom = 6;  // from the letters to the end of the key, its dark edge included
  constexpr int kOwn = 1;   // of a caption's width its letters leave this free
  while (text.ends_with(' ')) text.remove_suffix(1);
  while (text.starts_with(' ')) text.remove_prefix(1);
  const int width = font_.width(text, size);
  const int gaps = static_cast<int>(text.size()) - 1;
  const int closed = std::clamp(width - kOwn - (key.width - 2 * kRoom), 0, std::max(gaps, 0));
  int x = key.left + (key.width - width + closed) / 2;
  const int y = key.top + (key.height - lineHeight(size)) / 2;
  if (closed == 0) {
    font_.draw(target_, clip_, x, y, text, size, color);
    return;
  }
  for (int i = 0; !text.empty(); ++i) {
    std::string_view rest = text;
    takeCharacter(rest);
    const std::string_view letter = text.substr(0, text.size() - rest.size());
    font_.draw(target_, clip_, x, y, letter, size, color);
    x += font_.width(letter, size) - (closed * (i + 1) / gaps - closed * i / gaps);
    text = rest;
  }
}

}  // namespace platform
