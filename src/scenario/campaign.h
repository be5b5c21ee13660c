// The end of a campaign mission: judged at the month roll that opens its judgement year.
#pragma once

#include "play/scene.h"
#include "store/progress_keeper.h"

namespace scenario {

/// Whether all goals of mission 1..10 are met now.
bool missionGoalMet(const core::City& city, int mission);

/// Judges the running mission if its time has come. A mission won raises "config.dat", hands the city
/// over in a file, and goes back to the menu within a second; a mission lost goes back as well. A file
/// that fails is reported in a message box.
void checkMissionEnd(play::Scene& scene, store::ProgressKeeper& progress);

}  // namespace scenario
