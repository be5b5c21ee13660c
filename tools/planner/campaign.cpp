// vellmoran-campaign-planner FOLDER: plays the ten missions in a row, in one program's folder, and
// writes what it pressed as a script for the driver, campaign.txt, with a picture of the map in the last
// moment of each mission. docs/solutions has the pictures made small:
// convert IN.png -trim +repage -resize 560x +dither -colors 96 -strip PNG8:OUT.png
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>

#include "planner/campaign_mayor.h"
#include "platform/program_folder.h"

namespace campaign {

namespace {

constexpr int kMostTicks = 2000;
constexpr int kRounds = 40000;
constexpr int kNever = 0;

/// What is done in the moment after each tick. `months` are those left to the judgement, the running
/// one too.
using Policy = std::function<void(int months)>;

class Campaign {
 public:
  Campaign(Player& player, std::string pictures)
      : player_(player), pictures_(std::move(pictures)) {}

  void play(int mission, int judgedIn, bool takenOver, const Policy& policy) {
    mission_ = mission;
    player_.blankLine();
    player_.remark("Mission " + std::to_string(mission));
    if (mission == 1) {
      for (const char* click : {"mainnew", "stcampaign", "Label6 0"}) {
        player_.run(std::string("click ") + click);
      }
    }
    player_.run("click Command14");
    player_.run("advance 500");
    player_.gameOpened(takenOver);
    int month = 0;
    int ticks = 0;
    while (player_.values().gMission == mission) {
      const int left = (judgedIn - player_.values().gYear.whole()) * 12 + 1 - monthNow();
      if ((judgedIn != kNever && left <= 0) || ticks == kMostTicks) {
        throw std::runtime_error("mission " + std::to_string(mission) + " lost: " + figures());
      }
      if (month != monthNow()) {
        month = monthNow();
        player_.remark(figures());
      }
      policy(left);
      if (left == 1 && player_.game().tickOfMonth >= player_.game().monthLength) takePicture();
      player_.tick();
      ++ticks;
    }
    finish(ticks);
  }

 private:
  int monthNow() { return player_.game().month.whole(); }

  std::string figures() {
    core::GameState& game = player_.game();
    char text[120];
    std::snprintf(text, sizeof text, "%d/%d: %d people, %d food, %.0f gold, tax %d", monthNow(),
                  player_.values().gYear.whole(), game.population.whole(), game.food.whole(),
                  static_cast<double>(game.gold), game.taxRate.whole());
    return text;
  }

  void takePicture() {
    char name[32];
    std::snprintf(name, sizeof name, "/mission%02d.png", mission_);
    player_.aside("surface " + pictures_ + name);
  }

  void finish(int ticks) {
    std::printf("mission %d won after %d ticks, %s\n", mission_, ticks, figures().c_str());
    if (mission_ == 10) takePicture();
    player_.remark("Won:");
    for (const char* goal : {"population", "food", "gold"}) {
      player_.expect(std::string("get ") + goal);
    }
    for (const char* service : {"market", "school", "tavern", "church", "doctor"}) {
      player_.expect(std::string("get ") + service + "Rating");
    }
    player_.run("advance 1000");
    player_.expect("screen");
    player_.expect("get gMission");
    player_.expect("control Frame1");
    player_.expect("control goalinfo");
    if (mission_ == 10) player_.expect("control cpgninfo");
  }

  Player& player_;
  std::string pictures_;
  int mission_ = 0;
};

void show(const Town& town) {
  std::printf("%s%d homes, %d fully served, %d farms\n", town.picture().c_str(),
              static_cast<int>(town.homes.size()), town.homesServedBy(5),
              static_cast<int>(town.farms.size()));
}

/// Full tax until the last month, then room for the people that the goal wants.
Policy towards(Player& player, Mayor& mayor, const Wants& wants, double people) {
  return [&player, &mayor, &wants, people](int months) {
    mayor.work(wants);
    if (!player.inGame()) return;
    if (months <= 1) {
      mayor.taxFor(people);
    } else {
      mayor.taxForMilestone();
    }
  };
}

void playVillage(Player& player, Campaign& campaign) {
  const Town town = planTown({.first = 6,
                              .side = 19,
                              .streets = {8, 13, 18},
                              .from = 6,
                              .to = 20,
                              .crossing = 13,
                              .services = {0, 2, 2, 2, 2, 3}},
                             1, kRounds);
  show(town);
  Mayor mayor(player, town);
  const Wants wants = mayor.wholeTown();
  campaign.play(1, 1717, false, towards(player, mayor, wants, 530));
  campaign.play(2, 1719, true, towards(player, mayor, wants, 1050));
  campaign.play(3, 1720, true, towards(player, mayor, wants, 1050));
}

void playHarbor(Player& player, Campaign& campaign) {
  const Town town = planTown({.first = 4,
                              .side = 23,
                              .streets = {6, 11, 16, 21},
                              .from = 4,
                              .to = 18,
                              .crossing = 11,
                              .services = {0, 2, 2, 4, 2, 4}},
                             1, kRounds);
  show(town);
  Mayor mayor(player, town);
  const Wants wants = mayor.wholeTown();
  campaign.play(4, 1721, false, towards(player, mayor, wants, 1050));
  campaign.play(5, 1723, true, towards(player, mayor, wants, 1550));
  campaign.play(6, 1725, true, towards(player, mayor, wants, 1800));
}

/// Only homes that all five services reach are built: they alone keep the ratings at 100.
void playNobleCity(Player& player, Campaign& campaign) {
  const Town planned = planTown({.first = 6,
                                 .side = 19,
                                 .streets = {8, 13, 18, 23},
                                 .from = 6,
                                 .to = 18,
                                 .crossing = 12,
                                 .services = {0, 2, 2, 3, 2, 4}},
                                1, kRounds);
  show(planned);
  Town town = planned;
  town.homes.clear();
  for (std::size_t n = 0; n < planned.homes.size(); ++n) {
    if (planned.served[n] == 5) town.homes.push_back(planned.homes[n]);
  }
  Mayor mayor(player, town);
  const Wants wants = mayor.wholeTown();
  campaign.play(7, 1727, false, towards(player, mayor, wants, 1300));
  campaign.play(8, 1729, true, towards(player, mayor, wants, 1300));
}

/// Farms lie where the last homes will stand. When the treasury is full they go, right after a harvest:
/// what is stored lasts to the end of the month, and by then the castle is full.
void playCastle(Player& player, Campaign& campaign) {
  constexpr int kFarmland = 19;  // first row of the farms
  Town town = planTown({.first = 9,
                        .side = 13,
                        .streets = {11, 16, kFarmland},
                        .from = 9,
                        .to = 21,
                        .crossing = 13,
                        .services = {0, 1, 1, 1, 2, 2},
                        .fullyServed = 0},
                       1, kRounds);
  town.farms.clear();
  Mayor full(player, town);
  const Wants fullCastle = full.wholeTown();
  for (const int x : {9, 12, 15, 18}) town.farms.push_back({x, kFarmland});
  show(town);
  Mayor mayor(player, town);
  const auto onFarmland = [](const Want& want) {
    return want.tool != kFarm && want.at.y + sideOf(want.tool) > kFarmland;
  };
  const Wants wants =
      without(all({mayor.service(kMarkets, 0), mayor.homes(0, 10), mayor.service(kChurches, 0),
                   mayor.homes(10, 99), mayor.farms(0, 99), fullCastle}),
              onFarmland);
  // The farms feed the people as long as no doctor draws more of them in.
  const Wants early = without(wants, [](const Want& want) { return want.tool == kDoctor; });
  campaign.play(9, 1730, false, [&](int months) {
    towards(player, mayor, months > 2 ? early : wants, 1003)(months);
  });
  bool filling = false;
  campaign.play(10, kNever, true, [&](int) {
    core::GameState& game = player.game();
    if (!filling && game.tickOfMonth == 1 && game.gold >= 400 && game.food > 0) {
      filling = true;
      for (const Cell& farm : town.farms) player.press(kDemolish, farm);
    }
    full.work(filling ? fullCastle : wants);
    player.setTax(filling ? 0 : 30);
  });
}

void playAll(Player& player, const std::string& pictures) {
  Campaign campaign(player, pictures);
  player.remark(
      "The campaign, won: ten missions in a row in one folder, each city that goes on handed");
  player.remark("over by the file that the game wrote. Made by vellmoran-campaign-planner.");
  player.run("seed 1");
  playVillage(player, campaign);
  playHarbor(player, campaign);
  playNobleCity(player, campaign);
  playCastle(player, campaign);
}

}  // namespace

}  // namespace campaign

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: vellmoran-campaign-planner FOLDER\n");
    return 2;
  }
  const std::string folder = std::filesystem::absolute(argv[1]);
  std::string played = std::filesystem::temp_directory_path() / "vellmoran-campaign-XXXXXX";
  std::string error;
  const auto assets = driver::Session::loadAssets(platform::executableFolder() + "/data", error);
  if (mkdtemp(played.data()) == nullptr) error = "there is no room for a folder to play in";
  auto session = error.empty() ? driver::Session::start(played, assets, error) : nullptr;
  if (session == nullptr) {
    std::fprintf(stderr, "vellmoran-campaign-planner: %s\n", error.c_str());
    return 2;
  }
  int status = 0;
  {
    campaign::Player player(std::move(session));
    try {
      campaign::playAll(player, folder);
    } catch (const std::exception& failure) {
      std::fprintf(stderr, "vellmoran-campaign-planner: %s\n", failure.what());
      status = 1;
    }
    std::ofstream(folder + (status == 0 ? "/campaign.txt" : "/campaign.failed")) << player.script();
  }
  std::filesystem::remove_all(played);
  return status;
}
