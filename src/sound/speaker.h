// The game's mouth: the four cues and the commands that play a theme. All strings are made once, so
// that sounding one allocates nothing. What the media layer answers is never looked at.
#pragma once

#include <array>
#include <string>

#include "platform/media.h"

namespace sound {

inline constexpr int kCues = 4;
inline constexpr int kTracks = 5;

/// What a cue means: the number of its file.
enum Cue { kClick = 1, kTool = 2, kBuild = 3, kDemolish = 4 };

class Speaker {
 public:
  /// `folder` is the program's folder, without a separator at its end.
  Speaker(platform::Media& media, const std::string& folder);

  /// Plays a cue, whatever the player's switch says.
  void cue(Cue cue);
  /// Stops the music.
  void closeMusic();
  /// Opens theme 1..5; what was open must have been closed.
  void openMusic(int track);
  /// Plays the theme that is open.
  void playMusic();

 private:
  platform::Media& media_;
  std::array<std::string, kCues> cues_;
  std::array<std::string, kTracks> openCommands_;
};

}  // namespace sound
