#include "platform/browser/browser_display.h"

#include "platform/browser/host.h"

namespace platform {

void BrowserDisplay::present(const Surface& framebuffer, std::span<const Rect> changed) {
  const int width = framebuffer.pixelBounds().width;
  const auto place = [&](int x, int y) { return 4 * static_cast<std::size_t>(y * width + x); };
  shown_.resize(place(0, framebuffer.pixelBounds().height), 255);
  for (const Rect& units : changed) {
    const Rect rect = framebuffer.inPixels(units);
    for (int y = rect.top; y < rect.bottom(); ++y) {
      const std::uint8_t* from = framebuffer.row(y) + rect.left * 3;
      std::uint8_t* to = &shown_[place(rect.left, y)];
      for (int x = 0; x < rect.width; ++x, from += 3, to += 4) {
        to[0] = from[0];
        to[1] = from[1];
        to[2] = from[2];
      }
    }
    pageShow(shown_.data(), width, rect.left, rect.top, rect.width, rect.height);
  }
}

void BrowserDisplay::message(const char* title, const char* text) {
  pageMessage(title, text);
}

}  // namespace platform
