// The panel of preferences: game speed, sound effects, farm animation, walkers.
#pragma once

#include "play/scene.h"

namespace play {

// The speeds, by the length of their months in ticks of the clock, which are seconds.
inline constexpr int kFast = 16;
inline constexpr int kNormal = 25;
inline constexpr int kSlow = 34;

void openPreferences(Scene& scene);
/// One step faster, or slower; it takes effect at the next month.
void speedUp(Scene& scene);
void slowDown(Scene& scene);
void toggleSound(Scene& scene);
void toggleFarmAnimation(Scene& scene);
void toggleWalkers(Scene& scene);
/// Writes the caption of the speed; another number of ticks leaves it.
void writeSpeed(Scene& scene);

}  // namespace play
