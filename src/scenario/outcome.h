// The end of a mission or a level, won or lost.
#pragma once

#include "play/scene.h"

namespace scenario {

/// Shows the outcome of the run, and lets `wayBack` (Timer9, Timer11 or Timer15) lead to the menu a
/// second later. Says which timers live on until then.
void endRun(play::Scene& scene, const char* outcome, int wayBack);

}  // namespace scenario
