// The panel of preferences: game speed, sound effects, farm animation, walkers.
#pragma once

#include "play/scene.h"

namespace play {

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
