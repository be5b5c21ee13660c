#include "scenario/campaign.h"

#include "core/number_text.h"
#include "platform/files.h"
#include "scenario/missions.h"
#include "scenario/outcome.h"
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

/// Brings "config.dat" up to the mission just reached.
void raiseProgress(play::Scene& scene, store::ProgressKeeper& keeper) {
  core::ProgramValues& values = scene.values;
  const double reached = values.gMission;
  std::string notice;
  store::Progress progress = keeper.read(notice);
  scene.game.reachedMission = progress.reachedMission;
  if (reached < progress.reachedMission) {
    values.gReplayedMission = 1;
  } else {
    values.gReservedNumber = progress.reservedNumber;
    values.puzzleDone = progress.puzzleDone;
    if (progress.reachedMission < reached) {
      progress.reachedMission = reached;
      keeper.write(progress, notice);
    }
  }
  if (!notice.empty()) scene.desk.showBox("Error", notice);
}

/// Writes the city for the mission just reached. It goes over as it stands at this moment of the month,
/// before the tick's money.
void handCityOver(play::Scene& scene, const std::string& folder) {
  const int mission = scene.values.gMission.whole();
  const std::string path = folder + "/" + store::handOverFile(mission);
  std::string message;
  if (store::saveGame(path, scene.game, scene.values, message)) return;
  message += ".\nThis city could not be handed over. Mission ";
  message += core::NumberText(mission).view();
  if (!goesOn(mission)) {
    message += " founds a new one and does not need it.";
  } else if (platform::fileExists(path)) {
    message += " goes on with the city that was handed over before.";
  } else {
    message += " cannot start without it: win this mission again.";
  }
  scene.desk.showBox("Error", message);
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

void checkMissionEnd(play::Scene& scene, store::ProgressKeeper& progress) {
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
  raiseProgress(scene, progress);
  if (values.gMission < kCampaignWon) handCityOver(scene, progress.folder());
  core::setCaption(scene.text(play::ui::pop1), "Population:", scene.game.population);
  endRun(scene, "MISSION COMPLETED", play::timer::Timer9);
}

}  // namespace scenario
