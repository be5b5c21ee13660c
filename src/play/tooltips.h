// What the letters and words of the game screen mean, shown while the pointer rests on one.
#pragma once

#include "platform/form.h"

namespace play {

/// Gives the controls of the game screen their tooltips. The numbers in them are read from the tables
/// by which the rules work.
void writeTooltips(platform::Form& form);

}  // namespace play
