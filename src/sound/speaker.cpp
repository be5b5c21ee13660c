#include "sound/speaker.h"

namespace sound {

Speaker::Speaker(platform::Media& media, const std::string& folder) : media_(media) {
  for (int n = 0; n < kCues; ++n) {
    cues_[static_cast<std::size_t>(n)] = folder + "\\sound" + std::to_string(n + 1) + ".wav";
  }
  for (int n = 0; n < kTracks; ++n) {
    openCommands_[static_cast<std::size_t>(n)] = "Open \"" + folder + "\\theme" +
                                                 std::to_string(n + 1) +
                                                 ".Mid\" type sequencer alias canyon";
  }
}

void Speaker::cue(Cue cue) {
  media_.sndPlaySoundA(cues_[static_cast<std::size_t>(cue - 1)], platform::SND_ASYNC);
}

void Speaker::closeMusic() {
  media_.mciSendStringA("close canyon");
}

void Speaker::openMusic(int track) {
  media_.mciSendStringA(openCommands_[static_cast<std::size_t>(track - 1)]);
}

void Speaker::playMusic() {
  media_.mciSendStringA("play canyon");
}

}  // namespace sound
