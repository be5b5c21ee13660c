// Which theme plays when: one track over and over, or all five in turn, by the count of seconds
// alone. The device is never queried for the end of a theme; the counts replace that.
#pragma once

#include "core/game_state.h"

namespace sound {

/// Entries of the music list, in the list's order.
enum class MusicChoice { autoPlay, off, track1, track2, track3, track4, track5 };
inline constexpr const char* kMusicChoices[] = {"Auto play", "Off",     "Track 1", "Track 2",
                                                "Track 3",   "Track 4", "Track 5"};

/// Takes over a choice; the music starts with the next tick. Returns whether the music timer runs from
/// now on. With `off` the caller stops the music first; the track that was chosen stays noted.
bool chooseMusic(core::Music& music, MusicChoice choice);

/// One second of music time: counts on, and returns the track to start now, or 0.
int countMusicSecond(core::Music& music);
/// Restarts the cycle when it has run its length; comes after the start of a track.
void closeMusicCycle(core::Music& music);

}  // namespace sound
