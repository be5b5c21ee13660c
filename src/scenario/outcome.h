// The end of a mission or a level, won or lost.
#pragma once

#include "play/scene.h"

namespace scenario {

/// Shows the outcome of the run, and lets `wayBack` (Timer9, Timer11 or Timer15) lead to the menu a
/// second later. outcome.cpp lists the timers that keep running until then.
void endRun(play::Scene& scene, const char* outcome, int wayBack);

}  // namespace scenario
