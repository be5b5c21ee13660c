// Sound that is written down instead of played: a cue as its file name, what is done to a theme as the
// text of a media command, with F for the program's folder.
#pragma once

#include <string>
#include <vector>

#include "platform/media.h"

namespace platform {

class VirtualMedia : public Media {
 public:
  void playCue(int cue) override;
  void openTheme(int theme) override;
  void playTheme() override;
  void closeTheme() override;

  /// What was requested since the last call.
  std::vector<std::string> take();

 private:
  std::vector<std::string> log_;
};

}  // namespace platform
