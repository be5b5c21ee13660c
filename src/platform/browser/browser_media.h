// Music and cues, played by the page.
#pragma once

#include "platform/media.h"

namespace platform {

class BrowserMedia : public Media {
 public:
  void playCue(int cue) override;
  void openTheme(int theme) override;
  void playTheme() override;
  void closeTheme() override;
};

}  // namespace platform
