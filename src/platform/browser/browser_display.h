// The picture on the page. The page brings it to its own size.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/display.h"

namespace platform {

class BrowserDisplay : public Display {
 public:
  Size size() override { return {kScreenWidth, kScreenHeight}; }
  int change(Size) override { return 0; }
  void present(const Surface& framebuffer, std::span<const Rect> changed) override;
  void message(const char* title, const char* text) override;

 private:
  std::vector<std::uint8_t> shown_;  // rows as the page wants them
};

}  // namespace platform
