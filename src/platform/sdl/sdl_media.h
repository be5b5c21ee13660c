// Music and cues through the machine's audio device. Whatever is missing, a device, a soundfont, a
// theme or a cue, is silence.
#pragma once

#include <array>
#include <string>

#include "platform/media.h"

struct Mix_Chunk;
typedef struct _Mix_Music Mix_Music;  // NOLINT: the name is the library's

namespace platform {

struct Mixer;

class SdlMedia : public Media {
 public:
  /// A theme or cue is looked for by its bare file name: in `programFolder`, then in `soundFolder`.
  SdlMedia(std::string programFolder, std::string soundFolder);
  ~SdlMedia() override;
  SdlMedia(const SdlMedia&) = delete;
  SdlMedia& operator=(const SdlMedia&) = delete;

  /// Opens the device and loads the cues `sound1.wav` to `sound4.wav`. To be called while
  /// the menu waits, behind its first picture; a first sound opens by itself.
  void open();

  void playCue(int cue) override;
  void openTheme(int theme) override;
  void playTheme() override;
  void closeTheme() override;

 private:
  /// The file of a theme or cue, by its bare name; empty when there is none.
  std::string find(const std::string& name) const;
  void useSoundFont(const char* path);
  void loadCues();

  std::string programFolder_;
  std::string soundFolder_;
  std::array<Mix_Chunk*, 4> cues_{};  // null for one that failed
  Mix_Music* music_ = nullptr;
  int channel_ = 0;
  const Mixer* mixer_ = nullptr;  // null while there is no device
  bool asked_ = false;            // the device has been asked for
  bool fontFound_ = false;
};

}  // namespace platform
