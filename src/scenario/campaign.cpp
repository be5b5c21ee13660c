#include "scenario/campaign.h"

#include "core/missions.h"
#include "core/number_text.h"
#include "core/vocabulary.h"
#include "platform/files.h"
#include "scenario/outcome.h"
#include "store/record.h"

namespace scenario {

namespace {

/// A tent, or the anchor cell of a house, is in sight anywhere.
bool anyTentOrHouse(const core::City& city) {
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      const int image = city.tileImage(x, y);
      if (image == core::kTentImage || image == core::kHouse.images[0]) return true;
    }
  }
  return false;
}

bool allRatingsAtLeast(const core::City& city, int percent) {
  for (int k = 1; k <= core::kServices; ++k) {
    if (core::rating(city, k) < percent) return false;
  }
  return true;
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

/// Writes the city for the mission just reached. The file holds its state at this point of the tick,
/// before the tick's money.
void handCityOver(play::Scene& scene, const std::string& folder) {
  const int mission = scene.values.gMission.whole();
  const std::string path = folder + "/" + store::handOverFile(mission);
  std::string message;
  if (store::saveGame(path, scene.game, scene.values, message)) return;
  message += ".\nThis city could not be handed over. Mission ";
  message += core::NumberText(mission).view();
  if (core::mission(mission).founds) {
    message += " founds a new one and does not need it.";
  } else if (platform::fileExists(path)) {
    message += " goes on with the city that was handed over before.";
  } else {
    message += " cannot start without it: win this mission again.";
  }
  scene.desk.showBox("Error", message);
}

}  // namespace

bool missionGoalMet(const core::City& city, int mission) {
  const core::Goal& goal = core::mission(mission).goal;
  // A debt counts only where gold is required.
  const auto reached = [](double has, int asked) { return asked == 0 || has >= asked; };
  return reached(city.population, goal.people) && reached(city.food, goal.food) &&
         reached(city.gold, goal.gold) && reached(city.churchRating, goal.religion) &&
         (goal.ratings == 0 || allRatingsAtLeast(city, goal.ratings)) &&
         (!goal.noTents || !anyTentOrHouse(city));
}

void checkMissionEnd(play::Scene& scene, store::ProgressKeeper& progress) {
  core::ProgramValues& values = scene.values;
  const int number = values.gMission.whole();
  if (number < core::kFirstMission || number > core::kCampaignWon) return;
  if (number != core::kCampaignWon) {
    const int year = core::mission(number).judgementYear;
    // The month counts too: a player who continues a lost mission is not judged again.
    if (year == 0 || values.gYear != year || scene.game.month != 1) return;
    if (!missionGoalMet(scene.game, number)) {
      endRun(scene, "MISSION FAILED", play::timer::Timer11);
      return;
    }
    values.gMission = number + 1;
  }
  raiseProgress(scene, progress);
  if (values.gMission < core::kCampaignWon) handCityOver(scene, progress.folder());
  core::setCaption(scene.text(play::ui::pop1), "Population:", scene.game.population);
  endRun(scene, "MISSION COMPLETED", play::timer::Timer9);
}

}  // namespace scenario
