// The sound library, opened while the program runs: with all that it brings along it costs ten
// milliseconds, which the first picture does not wait for.
#pragma once

#include <SDL_mixer.h>

namespace platform {

/// The calls of the library by their own names.
struct Mixer {
  decltype(&::Mix_OpenAudio) openAudio;
  decltype(&::Mix_CloseAudio) closeAudio;
  decltype(&::Mix_AllocateChannels) allocateChannels;
  decltype(&::Mix_SetSoundFonts) setSoundFonts;
  decltype(&::Mix_LoadWAV_RW) loadWavRw;
  decltype(&::Mix_FreeChunk) freeChunk;
  decltype(&::Mix_PlayChannelTimed) playChannelTimed;
  decltype(&::Mix_Playing) playing;
  decltype(&::Mix_HaltChannel) haltChannel;
  decltype(&::Mix_FadeOutChannel) fadeOutChannel;
  decltype(&::Mix_LoadMUS) loadMusic;
  decltype(&::Mix_FreeMusic) freeMusic;
  decltype(&::Mix_PlayMusic) playMusic;
  decltype(&::Mix_HaltMusic) haltMusic;
  decltype(&::Mix_VolumeMusic) volumeMusic;

  /// Null where there is no such library or a call is missing; SDL_GetError says which. It stays open
  /// until the program ends.
  static const Mixer* open();
};

}  // namespace platform
