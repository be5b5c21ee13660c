#include "platform/sdl/sdl_media.h"

#include <SDL.h>
#include <sys/stat.h>

#include <cstdio>

#include "platform/files.h"
#include "platform/sdl/hush.h"
#include "platform/sdl/mixer.h"

namespace platform {

namespace {

constexpr int kRate = 44100;
constexpr int kBuffer = 1024;     // frames: a cue begins within 25 ms
constexpr int kMusicVolume = 64;  // of 128; louder, full chords clip
constexpr int kFade = 10;         // milliseconds in which a cue that is cut off dies away

// A game that is carried about as a folder brings its soundfont along, beside the themes. The themes are
// balanced for the first of these; the others are what a machine may have instead.
constexpr const char* kSoundFonts[] = {
    "/usr/share/sounds/sf2/TimGM6mb.sf2",
    "/usr/share/sounds/sf2/default-GM.sf2",
    "/usr/share/sounds/sf3/default-GM.sf3",
    "/usr/share/soundfonts/default.sf2",
};

// A wrong file is taken without complaint and plays silence at full cost, so it is looked at
// before.
bool isSoundFont(const char* path) {
  struct stat status {};
  if (stat(path, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size < (1 << 20)) {
    return false;
  }
  std::FILE* const file = std::fopen(path, "rb");
  if (file == nullptr) return false;
  char head[4] = {};
  const bool read = std::fread(head, 1, sizeof head, file) == sizeof head;
  std::fclose(file);
  return read && std::string_view(head, sizeof head) == "RIFF";
}

// A device that plays, or silence for good: with a make-believe device the music would be worked
// out and thrown away.
bool openDevice(const Mixer& mixer) {
  const Hush hush;
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
  if (mixer.openAudio(kRate, MIX_DEFAULT_FORMAT, 2, kBuffer) == 0) return true;
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
  return false;
}

}  // namespace

SdlMedia::SdlMedia(std::string programFolder, std::string soundFolder)
    : programFolder_(std::move(programFolder)), soundFolder_(std::move(soundFolder)) {}

SdlMedia::~SdlMedia() {
  closeTheme();
  if (mixer_ == nullptr) return;
  mixer_->haltChannel(-1);
  for (Mix_Chunk* const chunk : cues_) {
    if (chunk != nullptr) mixer_->freeChunk(chunk);
  }
  mixer_->closeAudio();
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

void SdlMedia::open() {
  if (asked_) return;
  asked_ = true;
  const Mixer* const mixer = Mixer::open();
  if (mixer == nullptr || !openDevice(*mixer)) {
    std::fprintf(stderr, "vellmoran: no sound: %s\n", SDL_GetError());
    return;
  }
  mixer_ = mixer;
  mixer_->allocateChannels(2);
  mixer_->volumeMusic(kMusicVolume);
  const std::string bundled = soundFolder_ + "/soundfont.sf2";
  if (isSoundFont(bundled.c_str())) useSoundFont(bundled.c_str());
  for (const char* font : kSoundFonts) {
    if (!fontFound_ && isSoundFont(font)) useSoundFont(font);
  }
  if (!fontFound_) std::fprintf(stderr, "vellmoran: no music: there is no soundfont\n");
  loadCues();
}

void SdlMedia::useSoundFont(const char* path) {
  mixer_->setSoundFonts(path);
  fontFound_ = true;
}

std::string SdlMedia::find(const std::string& name) const {
  for (const std::string* folder : {&programFolder_, &soundFolder_}) {
    const std::string candidate = *folder + "/" + name;
    if (fileExists(candidate)) return candidate;
  }
  return "";
}

void SdlMedia::loadCues() {
  for (std::size_t n = 0; n < cues_.size(); ++n) {
    const std::string file = find("sound" + std::to_string(n + 1) + ".wav");
    if (!file.empty()) cues_[n] = mixer_->loadWavRw(SDL_RWFromFile(file.c_str(), "rb"), 1);
  }
}

void SdlMedia::playCue(int cue) {
  open();
  if (mixer_ == nullptr) return;
  Mix_Chunk* const chunk = cues_[cue - 1];
  // The cue that sounds dies away on its own channel while the new one begins on the other: cut off
  // hard, it would tick.
  if (mixer_->playing(channel_) != 0) mixer_->fadeOutChannel(channel_, kFade);
  if (chunk == nullptr) return;
  channel_ = 1 - channel_;
  mixer_->playChannelTimed(channel_, chunk, 0, -1);
}

void SdlMedia::openTheme(int theme) {
  open();
  if (mixer_ == nullptr || !fontFound_ || music_ != nullptr) return;
  const std::string file = find("theme" + std::to_string(theme) + ".Mid");
  if (!file.empty()) music_ = mixer_->loadMusic(file.c_str());
}

void SdlMedia::playTheme() {
  if (music_ != nullptr) mixer_->playMusic(music_, 1);
}

void SdlMedia::closeTheme() {
  if (music_ == nullptr) return;
  mixer_->haltMusic();
  mixer_->freeMusic(music_);
  music_ = nullptr;
}

}  // namespace platform
