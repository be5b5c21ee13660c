// The clipboard that the window shares with other programs.
#pragma once

#include "platform/clipboard.h"

namespace platform {

class SdlClipboard : public Clipboard {
 public:
  std::string text() override;
  void setText(const std::string& text) override;
};

}  // namespace platform
