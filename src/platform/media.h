// Music and cues. Nothing in the game depends on sound: what cannot be played is silence.
#pragma once

namespace platform {

class Media {
 public:
  virtual ~Media() = default;
  /// Plays cue 1 .. 4 and returns at once; a cue that still sounds is cut off.
  virtual void playCue(int cue) = 0;
  /// Opens theme 1 .. 5; the one before must have been closed.
  virtual void openTheme(int theme) = 0;
  /// Plays the theme that is open from its beginning.
  virtual void playTheme() = 0;
  /// Stops the theme. Nothing happens when none is open.
  virtual void closeTheme() = 0;
};

}  // namespace platform
