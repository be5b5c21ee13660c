// Music and cues. Nothing in the game depends on sound: a call that fails is silence.
#pragma once

#include <string_view>

namespace platform {

/// Play and return at once; a cue that still sounds is cut off.
inline constexpr int SND_ASYNC = 1;

class Media {
 public:
  virtual ~Media() = default;
  /// Plays the WAV file at `path`. The result says whether it could be played.
  virtual bool sndPlaySoundA(std::string_view path, int flags) = 0;
  /// Runs one media control command: `Open "FILE" type sequencer alias canyon`, `play canyon`,
  /// `close canyon`. Returns 0, or another number for a command that failed. Closing an alias that is
  /// not open does nothing.
  virtual int mciSendStringA(std::string_view command) = 0;
};

}  // namespace platform
