// The clipboard that the page shares with other programs. What comes out of it the page types.
#pragma once

#include "platform/browser/host.h"
#include "platform/clipboard.h"

namespace platform {

class BrowserClipboard : public Clipboard {
 public:
  void setText(const std::string& text) override {
    pageCopy(text.data(), static_cast<int>(text.size()));
  }
};

}  // namespace platform
