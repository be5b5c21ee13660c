#include "sound/music.h"

#include <array>

namespace sound {

namespace {

struct Schedule {
  int ownCycle;   // seconds until the track, chosen alone, starts over
  int autoStart;  // second of auto play at which it starts
};
constexpr std::array<Schedule, 5> kSchedule{
    {{83, 1}, {126, 83}, {165, 208}, {154, 371}, {130, 525}}};
constexpr int kAutoCycle = 658;

}  // namespace

bool chooseMusic(core::Music& music, MusicChoice choice) {
  music.musicAuto = 0;
  if (choice == MusicChoice::off) return false;
  music.musicTrack = choice == MusicChoice::autoPlay
                         ? 0
                         : static_cast<int>(choice) - static_cast<int>(MusicChoice::track1) + 1;
  return true;
}

int countMusicSecond(core::Music& music) {
  music.musicAuto += 1;
  if (music.musicTrack != 0) return music.musicAuto == 1 ? music.musicTrack : 0;
  for (int track = 1; track <= 5; ++track) {
    if (kSchedule[track - 1].autoStart == music.musicAuto) return track;
  }
  return 0;
}

void closeMusicCycle(core::Music& music) {
  const int cycle = music.musicTrack == 0 ? kAutoCycle : kSchedule[music.musicTrack - 1].ownCycle;
  if (music.musicAuto >= cycle) music.musicAuto = 0;
}

}  // namespace sound
