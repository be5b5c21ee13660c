#include "platform/font.h"

#include <array>
#include <vector>

#include "platform/glyphs.h"
#include "platform/utf8.h"

namespace platform {

namespace {

constexpr int kSizes = 4;
constexpr std::array<int, kSizes> kHeights{12, 15, 16, 19};
constexpr std::array<int, kSizes> kLineHeights{14, 18, 19, 22};

constexpr char32_t kFirstPrepared = 0x20;
constexpr char32_t kLastPrepared = 0x7E;
constexpr std::size_t kPreparedPerSize = kLastPrepared - kFirstPrepared + 1;
constexpr std::size_t kOnDemand = 256;  // other characters kept at a time, all sizes together

std::size_t number(FontSize size) {
  return static_cast<std::size_t>(size);
}

/// The glyph for characters that the font lacks: an empty box of letter height.
Glyph emptyBox(int height, int scale) {
  Glyph box;
  box.advance = height / 2 + 2;
  box.width = height / 2 * scale;
  box.height = height * 2 / 3 * scale;
  box.left = scale;
  box.top = box.height;
  box.cover.assign(static_cast<std::size_t>(box.width * box.height), 0);
  for (int y = 0; y < box.height; ++y) {
    for (int x = 0; x < box.width; ++x) {
      const bool rim = x < scale || y < scale || x >= box.width - scale || y >= box.height - scale;
      if (rim) box.cover[y * box.width + x] = 255;
    }
  }
  return box;
}

}  // namespace

int lineHeight(FontSize size) {
  return kLineHeights[number(size)];
}

struct Font::Implementation {
  int scale = 1;
  std::unique_ptr<Glyphs> glyphs;
  std::array<int, kSizes> base{};  // from the top of a line to its base line
  std::array<std::array<Glyph, kPreparedPerSize>, kSizes> prepared;
  struct Kept {
    std::size_t size = 0;
    Glyph glyph;
  };
  std::vector<Kept> kept;
  std::size_t oldest = 0;  // the one to give way when all places are taken

  bool start(const std::string& path, std::string& error);
  Glyph render(char32_t code, std::size_t size, int forScale);
  const Glyph& glyph(char32_t code, std::size_t size);
};

/// Opens the font and prepares its plain letters.
bool Font::Implementation::start(const std::string& path, std::string& error) {
  glyphs = openGlyphs(path, error);
  if (glyphs == nullptr) return false;
  for (std::size_t size = 0; size < kSizes; ++size) {
    for (char32_t code = kFirstPrepared; code <= kLastPrepared; ++code) {
      prepared[size][code - kFirstPrepared] = render(code, size, scale);
    }
    // Capitals are centred in the line, so that captions are centred in buttons.
    const int capital = render('H', size, 1).top;
    base[size] = (kLineHeights[size] + capital + 1) / 2;
  }
  kept.reserve(kOnDemand);
  return true;
}

Glyph Font::Implementation::render(char32_t code, std::size_t size, int forScale) {
  Glyph glyph;
  if (!glyphs->render(code, kHeights[size], forScale, glyph)) {
    glyph = emptyBox(kHeights[size], forScale);
  }
  glyph.code = code;
  return glyph;
}

const Glyph& Font::Implementation::glyph(char32_t code, std::size_t size) {
  if (code >= kFirstPrepared && code <= kLastPrepared) return prepared[size][code - kFirstPrepared];
  for (const Kept& one : kept) {
    if (one.size == size && one.glyph.code == code) return one.glyph;
  }
  if (kept.size() < kOnDemand)
    return kept.emplace_back(Kept{size, render(code, size, scale)}).glyph;
  Kept& place = kept[oldest];
  oldest = (oldest + 1) % kOnDemand;
  place = {size, render(code, size, scale)};
  return place.glyph;
}

Font::Font(int scale) : implementation_(std::make_unique<Implementation>()) {
  implementation_->scale = scale;
}
Font::~Font() = default;

std::unique_ptr<Font> Font::open(const std::string& path, std::string& error, int scale) {
  std::unique_ptr<Font> font(new Font(scale));
  if (!font->implementation_->start(path, error)) return nullptr;
  return font;
}

int Font::width(std::string_view text, FontSize size) {
  int pen = 0;
  while (!text.empty()) pen += implementation_->glyph(takeCharacter(text), number(size)).advance;
  return pen;
}

void Font::draw(Surface& target, const Rect& clip, int x, int y, std::string_view text,
                FontSize size, Color color) {
  const Rect area = intersection(clip, target.bounds());
  const Rect pixels = target.inPixels(area);
  Point pen{x, y + implementation_->base[number(size)]};
  // A letter may begin a little to the left of its pen, never a letter's height.
  const int end = area.right() + kHeights[number(size)];
  while (!text.empty() && pen.x < end) {
    const Glyph& glyph = implementation_->glyph(takeCharacter(text), number(size));
    const Point at = target.inPixels(pen);
    const Rect box{at.x + glyph.left, at.y - glyph.top, glyph.width, glyph.height};
    const Rect seen = intersection(box, pixels);
    for (int row = seen.top; row < seen.bottom(); ++row) {
      const std::uint8_t* cover = &glyph.cover[(row - box.top) * box.width + seen.left - box.left];
      std::uint8_t* pixel = target.row(row) + static_cast<std::size_t>(seen.left) * 3;
      for (int i = 0; i < seen.width; ++i, pixel += 3) {
        const int part = cover[i];
        if (part == 0) continue;
        const auto blend = [part](std::uint8_t& channel, int to) {
          channel = static_cast<std::uint8_t>((channel * (255 - part) + to * part + 127) / 255);
        };
        blend(pixel[0], color.r);
        blend(pixel[1], color.g);
        blend(pixel[2], color.b);
      }
    }
    pen.x += glyph.advance;
  }
}

}  // namespace platform
