#include "platform/sdl/mixer.h"

#include <SDL.h>

namespace platform {

namespace {

constexpr const char* kLibrary = "libSDL2_mixer-2.0.so.0";

template <typename Function>
bool find(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(SDL_LoadFunction(library, name));
  return function != nullptr;
}

bool fill(void* library, Mixer& mixer) {
  return find(library, "Mix_OpenAudio", mixer.openAudio) &&
         find(library, "Mix_CloseAudio", mixer.closeAudio) &&
         find(library, "Mix_AllocateChannels", mixer.allocateChannels) &&
         find(library, "Mix_SetSoundFonts", mixer.setSoundFonts) &&
         find(library, "Mix_LoadWAV_RW", mixer.loadWavRw) &&
         find(library, "Mix_FreeChunk", mixer.freeChunk) &&
         find(library, "Mix_PlayChannelTimed", mixer.playChannelTimed) &&
         find(library, "Mix_Playing", mixer.playing) &&
         find(library, "Mix_HaltChannel", mixer.haltChannel) &&
         find(library, "Mix_FadeOutChannel", mixer.fadeOutChannel) &&
         find(library, "Mix_LoadMUS", mixer.loadMusic) &&
         find(library, "Mix_FreeMusic", mixer.freeMusic) &&
         find(library, "Mix_PlayMusic", mixer.playMusic) &&
         find(library, "Mix_HaltMusic", mixer.haltMusic) &&
         find(library, "Mix_VolumeMusic", mixer.volumeMusic);
}

}  // namespace

const Mixer* Mixer::open() {
  static Mixer mixer;
  void* const library = SDL_LoadObject(kLibrary);
  return library != nullptr && fill(library, mixer) ? &mixer : nullptr;
}

}  // namespace platform
