#include "platform/browser/browser_display.h"

#include <algorithm>

#include "platform/browser/host.h"

namespace platform {

namespace {
constexpr int kBand =
    64;  // rows that are handed over at once; a copy of the whole would take megabytes
}

void BrowserDisplay::present(const Surface& framebuffer, std::span<const Rect> changed) {
  for (const Rect& units : changed) {
    const Rect rect = framebuffer.inPixels(units);
    for (int top = rect.top; top < rect.bottom(); top += kBand) {
      const int height = std::min(kBand, rect.bottom() - top);
      shown_.resize(static_cast<std::size_t>(rect.width * height * 4));
      std::uint8_t* to = shown_.data();
      for (int y = top; y < top + height; ++y) {
        const std::uint8_t* from = framebuffer.row(y) + rect.left * 3;
        for (int x = 0; x < rect.width; ++x, from += 3, to += 4) {
          to[0] = from[0];
          to[1] = from[1];
          to[2] = from[2];
          to[3] = 255;
        }
      }
      pageShow(shown_.data(), rect.left, top, rect.width, height);
    }
  }
}

void BrowserDisplay::message(const char* title, const char* text) {
  pageMessage(title, text);
}

}  // namespace platform
