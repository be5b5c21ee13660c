#include "monkey/mischief.h"

#include "core/buildings.h"
#include "core/missions.h"
#include "platform/files.h"
#include "store/record.h"

namespace monkey {

namespace {

constexpr const char* kSpots[] = {",", "\r\n", "-", "1e9", ".5", "7", "", "31", "nan", "x", "-1"};

}  // namespace

std::string Mischief::play() {
  const int kind = chance_.draw(10);
  if (kind < 3) return damage();
  if (kind < 4) return copyGame();
  if (kind < 8) return enrich();
  return progress();
}

void Mischief::saved(const std::string& name, bool spoilt) {
  if (spoilt) {
    spoilt_.insert(name);
  } else {
    spoilt_.erase(name);
  }
}

std::string Mischief::anyGame() {
  const auto names = platform::listFiles(folder_, ".sav");
  return names.empty() ? "" : chance_.pick(names);
}

bool Mischief::read(const std::string& name, std::string& text) const {
  std::string error;
  return !name.empty() && platform::readFile(folder_ + "/" + name, text, error);
}

void Mischief::write(const std::string& name, const std::string& text) const {
  std::string error;
  platform::writeFile(folder_ + "/" + name, text, error);
}

/// Cuts a game short or puts something else in the place of a few of its bytes.
std::string Mischief::damage() {
  const std::string name = anyGame();
  std::string text;
  if (!read(name, text) || text.empty()) return "nothing to damage";
  if (chance_.percent(10)) {
    text.resize(static_cast<std::size_t>(chance_.draw(static_cast<int>(text.size()))));
  }
  for (int n = chance_.between(1, 6); n > 0 && !text.empty(); --n) {
    // The head lines matter most.
    const int range = chance_.percent(50) ? 300 : static_cast<int>(text.size());
    const auto at =
        static_cast<std::size_t>(chance_.draw(std::min(range, static_cast<int>(text.size()))));
    text.replace(at, static_cast<std::size_t>(chance_.draw(3)), chance_.pick(kSpots));
  }
  write(name, text);
  spoilt_.insert(name);
  return "damaged " + name;
}

std::string Mischief::copyGame() {
  const std::string from = anyGame();
  std::string text;
  if (!read(from, text)) return "nothing to copy";
  const std::string to = std::string(1, static_cast<char>('a' + chance_.draw(3))) + ".sav";
  write(to, text);
  saved(to, spoilt(from));
  return "copied " + from + " to " + to;
}

/// A sound game with more money, food or buildings to choose from, near a month in which something
/// happens, or as the city that a mission takes over.
std::string Mischief::enrich() {
  std::string name = anyGame();
  std::string error;
  if (name.empty() || spoilt(name)) return "nothing to enrich";
  const auto record = store::readGame(folder_ + "/" + name, error);
  if (record == nullptr) return "nothing to enrich";
  core::GameState& game = record->game;
  core::ProgramValues& values = record->values;
  game.gold = chance_.between(8000, 30000);
  game.food = chance_.between(2000, 9000);
  for (const core::Building& building : core::kBuildings) {
    if (building.unlocking.toolFlag != 0) game.toolUnlocked[building.unlocking.toolFlag] = 1;
  }
  // Backdrops and walls fit squares of one size.
  const auto fits = [&](int mission) {
    const core::Mission* now = core::missionOf(values.gMission);
    if (mission > core::kMissions) return now == nullptr || !now->walls;
    return core::mission(mission).mapSize == values.gMapSize;
  };
  constexpr int kGoesOn[] = {2, 3, 5, 6, 8, 10};
  const int next = chance_.pick(kGoesOn);
  if (chance_.percent(50) && fits(next)) {
    values.gMission = next;
    name = "mission" + std::to_string(values.gMission.whole()) + ".dat";
  } else if (chance_.percent(50)) {
    constexpr struct {
      int mission, year, month;
    } kEvents[] = {{3, 1719, 2},  {2, 1718, 1},  {3, 1719, 12}, {7, 1727, 12},  {1, 1716, 12},
                   {4, 1720, 12}, {5, 1722, 12}, {15, 1716, 5}, {20, 1715, 12}, {22, 1715, 12}};
    const auto& event = chance_.pick(kEvents);
    if (fits(event.mission)) {
      values.gMission = event.mission;
      values.gYear = event.year;
      game.month = event.month;
    }
  }
  if (!store::saveGame(folder_ + "/" + name, game, values, error)) return error;
  return "enriched " + name;
}

std::string Mischief::progress() {
  std::string text = std::to_string(chance_.between(1, 11)) + ",0,1,0,1,0,0,0,0,0,0,1\r\n";
  if (chance_.percent(20)) text.resize(static_cast<std::size_t>(chance_.draw(20)));
  if (chance_.percent(10)) text.insert(text.size() / 2, chance_.pick(kSpots));
  write("config.dat", text);
  return "config.dat is now " + text;
}

}  // namespace monkey
