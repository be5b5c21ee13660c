// Sound that is written down instead of played.
#pragma once

#include <string>
#include <vector>

#include "platform/media.h"

namespace platform {

class VirtualMedia : public Media {
 public:
  bool sndPlaySoundA(std::string_view path, int flags) override;
  int mciSendStringA(std::string_view command) override;

  /// What was asked for since the last call: a cue as its file name, a command word for word.
  std::vector<std::string> take();

 private:
  std::vector<std::string> log_;
};

}  // namespace platform
