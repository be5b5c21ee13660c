// Music and cues, played by the page.
#pragma once

#include "platform/media.h"

namespace platform {

class BrowserMedia : public Media {
 public:
  bool sndPlaySoundA(std::string_view path, int flags) override;
  int mciSendStringA(std::string_view command) override;
};

}  // namespace platform
