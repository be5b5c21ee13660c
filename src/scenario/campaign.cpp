#include "scenario/campaign.h"

#include "core/number_text.h"
#include "scenario/missions.h"
#include "scenario/outcome.h"
#include "store/progress.h"
#include "store/record.h"

namespace scenario {

namespace {

/// A tent, or the anchor cell of a house, is in sight anywhere.
bool anyTentOrHouse(const core::GameState& game) {
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      if (game.tileImage(x, y) == 4 || game.tileImage(x, y) == 19) return true;
    }
  }
  return false;
}

bool allRatingsAtLeast(const core::GameState& game, double percent) {
  return game.marketRating >= percent && game.schoolRating >= percent &&
         game.tavernRating >= percent && game.churchRating >= percent &&
         game.doctorRating >= percent;
}

void tell(play::Scene& scene, const std::string& error) {
  scene.desk.showBox("Error", error);
}

/// Brings "config.dat" up to the mission just reached.
void raiseProgress(play::Scene& scene, const std::string& folder) {
  core::ProgramValues& values = scene.values;
  const double reached = values.gMission;
  store::Progress progress;
  std::string error;
  if (!store::prepareProgress(folder, error) || !error.empty()) tell(scene, error);
  if (!store::readProgress(folder, progress, error)) {
    tell(scene, error);
    return;
  }
  scene.game.reachedMission = progress.reachedMission;
  if (reached < progress.reachedMission) {
    values.gReplayedMission = 1;
    return;
  }
  values.gReservedNumber = progress.reservedNumber;
  values.puzzleDone = progress.puzzleDone;
  if (progress.reachedMission < reached) {
    progress.reachedMission = reached;
    if (!store::writeProgress(folder, progress, error)) tell(scene, error);
  }
}

}  // namespace

bool missionGoalMet(const core::GameState& game, int mission) {
  switch (mission) {
    case 1:
      return game.food >= 1500 && game.population >= 500;
    case 2:
      return game.population >= 1000 && game.gold >= 2500 && game.churchRating >= 75;
    case 3:
      return game.population >= 1000 && game.food >= 2000 && game.gold >= 2000;
    case 4:
      return game.population >= 1000;
    case 5:
      return game.population >= 1500 && game.gold >= 6000;
    case 6:
      return game.population >= 1750 && game.food >= 1000 && game.gold >= 1000;
    case 7:
      return game.population >= 1000 && !anyTentOrHouse(game) && allRatingsAtLeast(game, 90);
    case 8:
      return game.population >= 1250 && !anyTentOrHouse(game) && allRatingsAtLeast(game, 100);
    case 9:
      return game.population >= 750;
    case 10:
      return game.population >= 1250;
    default:
      return false;
  }
}

void checkMissionEnd(play::Scene& scene, const std::string& folder) {
  core::ProgramValues& values = scene.values;
  const int number = values.gMission.whole();
  if (number < 1 || number > kCampaignWon) return;
  if (number != kCampaignWon) {
    const int year = mission(number).judgementYear;
    // The month counts too: who goes on playing a mission that was lost is not judged again.
    if (year == 0 || values.gYear != year || scene.game.month != 1) return;
    if (!missionGoalMet(scene.game, number)) {
      endRun(scene, "MISSION FAILED", play::timer::Timer11);
      return;
    }
    values.gMission = number + 1;
  }
  raiseProgress(scene, folder);
  if (values.gMission < kCampaignWon) {
    // The city goes over as it stands at this moment of the month, before the tick's money.
    std::string error;
    const std::string path = folder + "/" + store::handOverFile(values.gMission.whole());
    if (!store::saveGame(path, scene.game, values, error)) tell(scene, error);
  }
  core::setCaption(scene.text(play::ui::pop1), "Population:", scene.game.population);
  endRun(scene, "MISSION COMPLETED", play::timer::Timer9);
}

}  // namespace scenario
