// vellmoran-campaign-planner DATA FOLDER SCRIPT [PICTURES]: plays the ten missions in a row, in one
// program's folder, and writes what it pressed as a script for the driver.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>

#include "planner/campaign_player.h"

namespace campaign {

namespace {

struct Want {
  Tool tool;
  Cell at;
};
using Wants = std::vector<Want>;

constexpr std::array<Tool, 6> kToolOfService = {kHouse,  kMarket, kSchool,
                                                kTavern, kChurch, kDoctor};
enum Service { kMarkets = 1, kSchools, kTaverns, kChurches, kDoctors };

/// Builds what a list wants, in its order, as far as the treasury allows, streets included.
class Mayor {
 public:
  Mayor(Player& player, const Town& town) : player_(player), town_(town) {}

  void work(const Wants& wants) {
    for (const Want& want : wants) {
      if (player_.stands(want.tool, want.at) || !player_.unlocked(want.tool)) continue;
      if (!provide(want)) return;
    }
  }

  bool provide(const Want& want) {
    if (want.tool != kFarm) {
      for (const Cell& cell : town_.wayTo(want.at, sideOf(want.tool), laid())) {
        if (!player_.press(kRoad, cell)) return false;
      }
    }
    return player_.press(want.tool, want.at);
  }

  Wants homes(std::size_t from, std::size_t to) const {
    Wants wants;
    for (std::size_t n = from; n < std::min(to, town_.homes.size()); ++n) {
      wants.push_back({kHouse, town_.homes[n]});
    }
    return wants;
  }
  Wants farms(std::size_t from, std::size_t to) const {
    Wants wants;
    for (std::size_t n = from; n < std::min(to, town_.farms.size()); ++n) {
      wants.push_back({kFarm, town_.farms[n]});
    }
    return wants;
  }
  Wants service(int k, std::size_t n) const {
    const auto& list = town_.services[static_cast<std::size_t>(k)];
    if (n >= list.size()) return {};
    return {{kToolOfService[static_cast<std::size_t>(k)], list[n]}};
  }

  /// People that the houses would hold at a tax rate, as they are served now.
  double roomAt(int tax) {
    core::GameState& game = player_.game();
    double room = 0;
    for (int y = 0; y <= 30; ++y) {
      for (int x = 0; x <= 30; ++x) {
        if (game.tileCode(x, y) < 11 || game.tileCode(x, y) > 14) continue;
        const double cell = (2 * game.cellServices(x, y) + 2) * (1 + (15.0 - tax) / 50);
        room += game.food <= 0 ? std::min(cell, 4.0) : cell;
      }
    }
    return room;
  }
  /// Sets the highest tax at which as many people as wanted have room; 0 when none is low enough.
  void taxFor(double people) {
    int tax = 30;
    while (tax > 0 && roomAt(tax) < people) tax -= 5;
    player_.setTax(tax);
  }

  /// The people needed for the next kind of service, or 0 when all are known.
  int nextMilestone() {
    core::GameState& game = player_.game();
    const int people[] = {100, 250, 500, 1000};
    for (int n = 1; n <= 4; ++n) {
      if (game.toolUnlocked[n] != 1) return people[n - 1];
    }
    return 0;
  }

  /// The full tax, or less while that brings a new kind of service.
  void taxForMilestone() {
    const int people = nextMilestone();
    taxFor(people > 0 && roomAt(0) >= people + 3 ? people + 3 : 0);
  }

  Player& player() { return player_; }
  const Town& town() const { return town_; }

 private:
  std::vector<Cell> laid() {
    std::vector<Cell> cells;
    for (const Cell& cell : town_.streets) {
      if (player_.stands(kRoad, cell)) cells.push_back(cell);
    }
    return cells;
  }

  Player& player_;
  const Town& town_;
};

Wants all(std::initializer_list<Wants> lists) {
  Wants wants;
  for (const Wants& list : lists) wants.insert(wants.end(), list.begin(), list.end());
  return wants;
}

/// What is done in the moment after each tick; months are those left to the judgement, this one too.
using Policy = std::function<void(int months)>;

class Campaign {
 public:
  Campaign(Player& player, std::string pictures)
      : player_(player), pictures_(std::move(pictures)) {}

  void play(int mission, int judgedIn, bool takenOver, const Policy& policy) {
    player_.blankLine();
    player_.remark("Mission " + std::to_string(mission) + ".");
    if (mission == 1) {
      for (const char* click : {"mainnew", "stcampaign", "Label6 0"}) {
        player_.run(std::string("click ") + click);
      }
    }
    player_.run("click Command14");
    player_.run("advance 500");
    player_.gameOpened(takenOver);
    report(mission, "starts");
    int ticks = 0;
    while (player_.values().gMission == mission) {
      core::ProgramValues& values = player_.values();
      const int month = player_.game().month.whole();
      const int left = judgedIn > 0 ? (judgedIn - values.gYear.whole()) * 12 - month + 1 : 0;
      if (judgedIn > 0 && left <= 0) {
        report(mission, "lost");
        throw std::runtime_error("mission " + std::to_string(mission) + " is lost");
      }
      if (month != month_) {
        month_ = month;
        if (verbose) report(mission, "");
      }
      policy(left);
      player_.tick();
      if (++ticks > 40000) throw std::runtime_error("no end");
    }
    report(mission, ("won after " + std::to_string(ticks) + " ticks").c_str());
    if (!pictures_.empty()) {
      char name[32];
      std::snprintf(name, sizeof name, "/mission%02d.png", mission);
      player_.aside("surface " + pictures_ + name);
    }
    player_.remark("The mission is won:");
    player_.expect("get population");
    player_.expect("get food");
    player_.expect("get gold");
    if (mission == 7 || mission == 8) {
      for (const char* rating : {"market", "school", "tavern", "church", "doctor"}) {
        player_.expect(std::string("get ") + rating + "Rating");
      }
    }
    if (mission == 2) player_.expect("get churchRating");
    player_.expect("control Command4");
    player_.run("advance 1000");
    player_.expect("screen");
    player_.expect("get gMission");
    player_.expect("control Frame1");
    player_.expect("control goalinfo");
  }

  bool verbose = false;

 private:
  void report(int mission, const char* what) {
    core::GameState& game = player_.game();
    std::printf("M%d %2d/%d %s people %g of %g, food %g, gold %.1f, tax %g, farms %g, ratings",
                mission, static_cast<double>(game.month) > 0 ? game.month.whole() : 0,
                player_.values().gYear.whole(), what, static_cast<double>(game.population),
                static_cast<double>(game.housingCapacity), static_cast<double>(game.food),
                static_cast<double>(game.gold), static_cast<double>(game.taxRate),
                static_cast<double>(game.farmCount));
    for (int k = 1; k <= 5; ++k) std::printf(" %d", core::rating(game, k).whole());
    std::printf("\n");
  }

  Player& player_;
  std::string pictures_;
  int month_ = 0;
};

void show(const Town& town) {
  std::printf("%s%d homes, %d fully served, %d farms\n", town.picture().c_str(),
              static_cast<int>(town.homes.size()), town.homesServedBy(5),
              static_cast<int>(town.farms.size()));
}

/// A town from its beginning: the nearest homes, then what they lack, then the rest.
Wants townWants(const Mayor& mayor, std::size_t farms) {
  return all({mayor.service(kMarkets, 0),
              mayor.homes(0, 10),
              mayor.service(kChurches, 0),
              mayor.homes(10, 18),
              mayor.farms(0, std::min<std::size_t>(farms, 5)),
              mayor.service(kSchools, 0),
              mayor.farms(5, std::min<std::size_t>(farms, 9)),
              mayor.homes(18, 24),
              mayor.service(kDoctors, 0),
              mayor.farms(9, std::min<std::size_t>(farms, 13)),
              mayor.service(kMarkets, 1),
              mayor.service(kChurches, 1),
              mayor.service(kSchools, 1),
              mayor.homes(24, 99),
              mayor.service(kDoctors, 1),
              mayor.service(kTaverns, 0),
              mayor.service(kTaverns, 1),
              mayor.service(kDoctors, 2),
              mayor.service(kDoctors, 3),
              mayor.service(kTaverns, 2),
              mayor.service(kTaverns, 3),
              mayor.farms(13, farms)});
}

void playAll(Player& player, const std::string& pictures, bool verbose) {
  Campaign campaign(player, pictures);
  campaign.verbose = verbose;
  player.remark("The campaign, won: missions 1 to 10 in a row, each city handed over by its file.");
  player.run("seed 1");

  const Town village = planTown({.first = 6,
                                 .side = 19,
                                 .streets = {8, 13, 18},
                                 .from = 6,
                                 .to = 20,
                                 .crossing = 13,
                                 .services = {0, 2, 2, 2, 2, 3}},
                                1, 40000);
  show(village);
  Mayor mayor(player, village);
  const Wants wants = townWants(mayor, 99);
  const auto towards = [](Mayor& who, const Wants& list, double people) {
    return [&who, &list, people](int months) {
      who.work(list);
      if (months <= 1) {
        who.taxFor(people);
      } else {
        who.taxForMilestone();
      }
    };
  };
  campaign.play(1, 1717, false, towards(mayor, wants, 530));
  campaign.play(2, 1719, true, towards(mayor, wants, 1050));
  campaign.play(3, 1720, true, towards(mayor, wants, 1050));

  const Town harbor = planTown({.first = 4,
                                .side = 23,
                                .streets = {6, 11, 16, 21},
                                .from = 4,
                                .to = 18,
                                .crossing = 11,
                                .services = {0, 2, 2, 4, 2, 4}},
                               1, 40000);
  show(harbor);
  Mayor harborMayor(player, harbor);
  const Wants harborWants = townWants(harborMayor, 99);
  campaign.play(4, 1721, false, towards(harborMayor, harborWants, 1050));
  campaign.play(5, 1723, true, towards(harborMayor, harborWants, 1550));
  campaign.play(6, 1725, true, towards(harborMayor, harborWants, 1800));

  const Town court = planTown({.first = 6,
                               .side = 19,
                               .streets = {8, 13, 18, 23},
                               .from = 6,
                               .to = 18,
                               .crossing = 12,
                               .services = {0, 2, 2, 3, 2, 4}},
                              1, 40000);
  show(court);
  Town served = court;
  served.homes.clear();
  for (std::size_t n = 0; n < court.homes.size(); ++n) {
    if (court.served[n] == 5) served.homes.push_back(court.homes[n]);
  }
  Mayor courtMayor(player, served);
  const Wants courtWants = townWants(courtMayor, 99);
  campaign.play(7, 1727, false, towards(courtMayor, courtWants, 1300));
  campaign.play(8, 1729, true, towards(courtMayor, courtWants, 1300));

  Town castle = planTown({.first = 9,
                          .side = 13,
                          .streets = {11, 16, 19},
                          .from = 9,
                          .to = 21,
                          .crossing = 13,
                          .services = {0, 1, 1, 1, 2, 2},
                          .fullyServed = 0},
                         1, 40000);
  castle.farms = {{9, 19}, {12, 19}, {15, 19}, {18, 19}};
  show(castle);
  Mayor castleMayor(player, castle);
  const auto above = [](Wants list) {
    std::erase_if(list, [](const Want& want) { return want.at.y > 18; });
    return list;
  };
  const Wants castleLater = townWants(castleMayor, 0);
  Wants castleWants = all({castleMayor.service(kMarkets, 0), castleMayor.homes(0, 10),
                           castleMayor.service(kChurches, 0), castleMayor.homes(10, 99)});
  castleWants = all({above(castleWants), castleMayor.farms(0, 4), above(castleLater)});
  campaign.play(9, 1730, false, towards(castleMayor, castleWants, 1003));
  bool last = false;
  campaign.play(10, 0, true, [&](int) {
    core::GameState& game = player.game();
    if (!last && game.tickOfMonth == 1 && game.gold >= 400 && game.food > 0) {
      last = true;
      for (const Cell& farm : castle.farms) {
        if (player.stands(kFarm, farm)) player.press(kDemolish, farm);
      }
    }
    castleMayor.work(last ? castleLater : castleWants);
    player.setTax(last ? 0 : 30);
  });
}

}  // namespace

}  // namespace campaign

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fprintf(stderr, "usage: vellmoran-campaign-planner DATA FOLDER SCRIPT [PICTURES]\n");
    return 2;
  }
  const std::string scriptFile = std::filesystem::absolute(argv[3]);
  const std::string pictures = argc > 4 ? std::filesystem::absolute(argv[4]).string() : "";
  std::string error;
  const auto assets = driver::Session::loadAssets(argv[1], error);
  auto session = assets ? driver::Session::start(argv[2], assets, error) : nullptr;
  if (session == nullptr) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return 2;
  }
  campaign::Player player(std::move(session));
  int status = 0;
  try {
    campaign::playAll(player, pictures, std::getenv("VERBOSE") != nullptr);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    status = 1;
  }
  std::ofstream(scriptFile) << player.script();
  return status;
}
