#include "platform/virtual/virtual_display.h"

#include <cstdio>

namespace platform {

int VirtualDisplay::change(Size size) {
  if (refusal_ == 0) size_ = size;
  return refusal_;
}

void VirtualDisplay::message(const char* title, const char* text) {
  message_ = std::string(title) + ": " + text;
  std::fprintf(stderr, "%s\n", message_.c_str());
}

}  // namespace platform
