// The status report: up to four months of the city's book, side by side, the running month last.
#pragma once

#include "play/scene.h"

namespace play {

void openStatusReport(Scene& scene);
void closeStatusReport(Scene& scene);
/// Fills the columns from the history. The months fill from the left, and roll from the fourth on.
void fillStatusReport(Scene& scene);

}  // namespace play
