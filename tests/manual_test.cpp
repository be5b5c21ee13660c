// The player's manual says what is so: each number in its text names its source in a comment at the end
// of the line, "<!--= market.price -->", and is that of the tables, of the rules or of a recorded play.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <map>
#include <regex>
#include <sstream>

#include "core/buildings.h"
#include "core/missions.h"
#include "core/new_game.h"
#include "play/preferences.h"
#include "shell/script_runner.h"
#include "sim/city.h"
#include "sim/food.h"
#include "sim/residences.h"
#include "sim/treasury.h"
#include "support/temp_folder.h"

namespace {

const std::string kManual = VELLMORAN_SOURCE_DIR "/docs/manual/";

using Numbers = std::map<std::string, std::vector<long>>;

/// People in one residence with so many services.
long housing(int tax, int services, double food) {
  sim::City city;
  city.game.taxRate = tax;
  city.game.food = food;
  city.block(core::kResidenceCode, 9, 9);
  city.serve(9, 9, services);
  return std::lround(city.game.housingCapacity);
}

/// The most people that a residence with this picture at its anchor holds.
long mostPeopleIn(const core::Look& look) {
  long most = 0;
  for (int people = 1; people <= 100; ++people) {
    sim::City city;
    city.block(core::kResidenceCode, 9, 9);
    city.game.cellCapacity.fill(people / 4.0);
    sim::evolveResidences(city.game);
    if (city.game.tileImage(9, 9) == look.images[0]) most = people;
  }
  return most;
}

/// What a play says about itself: "get gold => 600", and below it "# value town.gold".
void addPlays(Numbers& numbers) {
  for (const auto& entry : std::filesystem::directory_iterator(kManual + "plays")) {
    std::istringstream lines(support::bytesOf(entry.path()));
    for (std::string line, before; std::getline(lines, line); before = line) {
      if (!line.starts_with("# value ")) continue;
      numbers[line.substr(8)] = {std::labs(std::stol(before.substr(before.find("=> ") + 3)))};
    }
  }
}

Numbers allNumbers() {
  Numbers all;
  for (const core::Building& building : core::kBuildings) {
    const std::string word(building.word);
    all[word + ".price"] = {building.price};
    all[word + ".upkeep"] = {building.upkeep};
    all[word + ".reach"] = {building.reach};
    all[word + ".people"] = {building.unlocking.population};
  }
  for (int tax = 0; tax <= 30; tax += 5) {
    std::vector<long> row{tax};
    for (int n = 0; n <= 5; ++n) row.push_back(housing(tax, n, 100));
    all["housing." + std::to_string(tax)] = row;
  }
  for (int tax = 0; housing(tax, 1, 100) > mostPeopleIn(core::kTent); tax += 5) {
    all["tax.market"] = {tax};
  }
  all["stage.house"] = {mostPeopleIn(core::kTent)};
  all["stage.apartment"] = {mostPeopleIn(core::kHouse)};
  all["housing.15.5"] = {housing(15, 5, 100)};
  all["housing.hungry"] = {housing(15, 5, 0)};

  auto game = std::make_unique<core::GameState>();
  core::ProgramValues values;
  const char* const moneys[] = {"money.low", "money.normal", "money.high"};
  for (int choice = 1; choice <= 3; ++choice) {
    values.gStartMoney = choice;
    core::resetGame(*game, values);
    all[moneys[choice - 1]] = {std::lround(game->gold)};
  }
  all["month.first"] = {std::lround(game->monthLength)};
  all["month.slow"] = {play::kSlow}, all["month.normal"] = {play::kNormal};
  all["month.fast"] = {play::kFast};
  all["tax.start"] = {std::lround(game->taxRate)};
  for (const int tax : {15, 30}) {  // of a hundred people in a month, and the rate itself
    game->gold = 0, game->population = 100, game->taxRate = tax, game->monthLength = 1;
    sim::moveMoney(*game);
    all["tax." + std::to_string(tax)] = {std::lround(game->gold)};
  }
  game->farmCount = 1;
  for (const auto& [name, fertility] : {std::pair("good", 1.2), {"normal", 1.0}, {"bad", 0.8}}) {
    values.gFertility = fertility;
    all[std::string("harvest.") + name] = {std::lround(sim::harvestOfMonth(*game, values))};
  }
  game->food = 1000, game->population = 100;
  sim::consume(*game);
  all["eaten"] = {1000 - std::lround(game->food)};
  values.gFertility = 1;
  all["feeds"] = {
      static_cast<long>(sim::harvestOfMonth(*game, values) * 100 / double(all["eaten"][0]))};
  all["goal.religion"] = {core::mission(2).goal.religion};

  addPlays(all);
  const auto of = [&](const char* name) { return all[name].at(0); };
  all["town.left2"] = {of("town.tax2") - of("town.upkeep2")};
  all["town.surplus2"] = {of("town.harvest2") - of("town.eaten2")};
  all["town.more"] = {of("town.church") - of("town.people")};
  all["town.moretax"] = {of("town.more") * of("tax.15") / 100};
  return all;
}

TEST(Manual, HasNoNumberThatTheTablesTheRulesOrAPlayDoNotHave) {
  const Numbers all = allNumbers();
  std::istringstream text(support::bytesOf(kManual + "manual.md"));
  // A comment ends a stretch of text: the numbers before it are those that it names, in their order.
  const std::regex unread(R"(`[^`]*`|\]\([^)]*\)|^\d{1,2}\. |F11)");
  std::vector<long> seen;
  int checked = 0;
  std::string stretch;
  const auto readNumbers = [&](const std::string& words) {
    const std::string plain = std::regex_replace(words, unread, "");
    const std::regex number(R"(\d+)");
    for (std::sregex_iterator at(plain.begin(), plain.end(), number), end; at != end; ++at) {
      seen.push_back(std::stol(at->str()));
    }
  };
  for (std::string line; std::getline(text, line);) {
    std::size_t from = 0;
    for (std::size_t at; (at = line.find("<!--= ", from)) != std::string::npos;) {
      readNumbers(line.substr(from, at - from));
      const std::size_t close = line.find(" -->", at);
      ASSERT_NE(close, std::string::npos) << line;
      std::istringstream keys(line.substr(at + 6, close - at - 6));
      std::vector<long> named;
      for (std::string key; keys >> key;) {
        ASSERT_TRUE(all.contains(key)) << line;
        named.insert(named.end(), all.at(key).begin(), all.at(key).end());
      }
      EXPECT_EQ(seen, named) << line;
      checked += static_cast<int>(named.size());
      seen.clear();
      from = close + 4;
    }
    readNumbers(line.substr(from));
    if (line.empty()) {
      EXPECT_TRUE(seen.empty()) << "A number without a source: " << testing::PrintToString(seen);
      seen.clear();
    }
  }
  EXPECT_GT(checked, 100);
}

std::vector<std::string> plays() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(kManual + "plays")) {
    names.push_back(std::regex_replace(entry.path().stem().string(), std::regex("-"), "_"));
  }
  return names;
}

class ManualPlay : public testing::TestWithParam<std::string> {};

TEST_P(ManualPlay, GoesAsTheManualSays) {
  script::playFile(kManual + "plays/" + std::regex_replace(GetParam(), std::regex("_"), "-") +
                   ".txt");
}

INSTANTIATE_TEST_SUITE_P(Manual, ManualPlay, testing::ValuesIn(plays()),
                         [](const auto& play) { return play.param; });

}  // namespace
