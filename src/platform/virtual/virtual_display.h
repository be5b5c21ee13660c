// A display of a given size that shows nothing.
#pragma once

#include <string>

#include "platform/display.h"

namespace platform {

class VirtualDisplay : public Display {
 public:
  explicit VirtualDisplay(Size size = {1920, 1080}) : size_(size) {}
  Size size() override { return size_; }
  int change(Size size) override;
  void present(const Surface&, std::span<const Rect>) override {}
  void message(const char* title, const char* text) override;

  /// The result of the coming calls of `change`.
  void refuse(int result) { refusal_ = result; }
  const std::string& lastMessage() const { return message_; }

 private:
  Size size_;
  int refusal_ = 0;
  std::string message_;
};

}  // namespace platform
