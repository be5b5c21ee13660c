// Feeds damaged saved games to the reader: vellmoran-fuzz SECONDS [SEED]
//
// The reader must either refuse an input with a message that can be shown, or return a record whose
// values are inside the tables and that is the same again once written and read. Run it in a build with
// sanitizers. The same seed gives the same texts; a text that breaks a promise is left in
// "record_fuzz.failed", and the program ends with 1.
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "core/new_game.h"
#include "core/number_text.h"
#include "core/vocabulary.h"
#include "platform/files.h"
#include "platform/utf8.h"
#include "store/record.h"

namespace {

std::mt19937_64 generator;

std::size_t draw(std::size_t below) {
  return below == 0 ? 0 : generator() % below;
}

bool chance(int percent) {
  return draw(100) < static_cast<std::size_t>(percent);
}

// A town with something in every grid.
std::string soundRecord() {
  auto record = std::make_unique<store::Record>();
  core::GameState& game = record->game;
  core::ProgramValues& values = record->values;
  values.gStartMoney = 2;
  core::resetGame(game, values);
  values.gMission = 15;
  values.gMapSize = 24;
  values.gFertility = 0.8;
  values.gYear = 1716;
  for (int n = 0; n < 400; ++n) {
    const int x = static_cast<int>(draw(36)), y = static_cast<int>(draw(36));
    const int code = static_cast<int>(draw(90));
    if (core::isTileCode(code)) game.tileCode(x, y) = code;
    game.buildingId(x, y) = n;
    game.cellCapacity(x, y) = static_cast<double>(draw(1000)) / 7;
    game.cellServices(x, y) = static_cast<int>(draw(6));
    game.cellTall(x, y) = 1;
    const int k = 1 + static_cast<int>(draw(5));
    core::coverGrid(game, k)(x, y) = 1;
    game.roadService[k](x % 31, y % 31) = 1;
    game.cellService[k](y % 31, x % 31) = 1;
    game.history(x % 43, 1 + y % 18) = -static_cast<double>(draw(100000)) / 3;
  }
  std::string text;
  store::composeRecord(game, values, text);
  return text;
}

// A place in the text: often in the head, where the fields differ most.
std::size_t somewhere(const std::string& text) {
  return chance(60) ? draw(std::min<std::size_t>(text.size(), 400)) : draw(text.size());
}

std::string someNumber() {
  static const char* const kForms[] = {
      "",
      "0",
      "-0",
      ".8",
      "0.8",
      "5.",
      "-.5",
      "1.5E-03",
      "1e5",
      "1E+2",
      "2.E1",
      "1E999",
      "-1E999",
      "1E-999",
      "nan",
      "inf",
      "-inf",
      "0x10",
      "+5",
      " 5",
      "5 ",
      "--5",
      "1.2.3",
      ".",
      "-",
      "-.",
      "E5",
      "5E",
      "5E+",
      "1E--1",
      "4.9E-324",
      "1E308",
      "1.7976931348623157E308",
      "1.7976931348623159E308",
      "99999999999999999999",
      "2147483648",
      "-2147483649",
      "32768",
      "0.1E1",
      "1000000000",
      "1000000001",
      "1E-400000000000",
      "0E999999999999",
      "1E99999999999",
      "NAN",
      "1_0",
      "1,5",
      "\"\"",
      "\xC3\xA4",
      "\xFF",
      "1.0000000000000001",
  };
  if (chance(60)) return kForms[draw(std::size(kForms))];
  if (chance(50)) return std::string(core::NumberText(static_cast<double>(draw(120))).view());
  std::string number;
  if (chance(30)) number += '-';
  for (std::size_t n = draw(chance(5) ? 2000 : 25); n > 0; --n) {
    number += static_cast<char>('0' + draw(10));
    if (chance(5)) number += '.';
  }
  if (chance(40)) {
    number += 'E';
    number += core::NumberText(static_cast<double>(draw(800)) - 400).view();
  }
  return number;
}

void mutate(std::string& text, const std::string& other) {
  static const char kBytes[] = "0123456789.,-+eE\r\n \tnaifx#\x80\xFF";
  const std::size_t at = somewhere(text);
  const std::size_t begin = std::min(text.find_first_of(",\n", at), text.size() - 1) + 1;
  const std::size_t end = std::min(text.find_first_of(",\r\n", begin), text.size());
  switch (draw(10)) {
    case 0:
      text[at] = static_cast<char>(text[at] ^ (1 << draw(8)));
      break;
    case 1:
      text[at] = kBytes[draw(sizeof kBytes)];
      break;
    case 2:
      text.resize(chance(70) ? text.size() - draw(std::min<std::size_t>(40, text.size())) : at);
      break;
    case 3:
      text.insert(at, other, somewhere(other), draw(30));
      break;
    case 4:
      text.erase(at, 1 + draw(20));
      break;
    case 5:
    case 6:
      text.replace(begin, end - begin, someNumber());
      break;
    case 7:
      text.insert(begin, someNumber() + (chance(50) ? "," : "\r\n"));
      break;
    case 8:
      text.erase(begin, end - begin + 1);
      break;
    default:  // another kind of end behind the same field
      if (end < text.size()) {
        static const char* const kEnds[] = {",", "\n", "\r\n", "\r"};
        const std::size_t size = text[end] == '\r' ? 2 : 1;
        text.replace(end, size, kEnds[draw(std::size(kEnds))]);
      }
  }
  if (text.empty()) text += ',';
}

bool isShowable(std::string_view message) {
  if (message.empty() || message.size() > 300) return false;
  while (!message.empty()) {
    const bool isMark = message.starts_with("\xEF\xBF\xBD");
    const char32_t c = platform::takeCharacter(message);
    if (c < 0x20 || c == 0x7F || (c == platform::kReplacement && !isMark)) return false;
  }
  return true;
}

bool isInside(const store::Record& record) {
  const core::GameState& game = record.game;
  const auto whole = [](double value, int low, int high) {
    return value >= low && value <= high && value == static_cast<int>(value);
  };
  const double mission = record.values.gMission;
  if (!whole(mission, 1, 29) || (mission > 11 && mission < 20 && mission != 15 && mission != 16) ||
      !whole(record.values.gMapSize, 4, 28) || record.values.gMapSize.whole() % 2 != 0 ||
      !whole(game.month, 1, 12) || !whole(game.historyIndex, 1, 43) ||
      !whole(game.currentTool, 1, 10) || !(game.ticksPerMonth >= 1) || !(game.monthLength >= 1) ||
      !(game.taxRate >= 0 && game.taxRate <= 30)) {
    return false;
  }
  const auto flag = [](int value) { return value == 0 || value == 1; };
  for (int y = 0; y <= 35; ++y) {
    for (int x = 0; x <= 35; ++x) {
      if (!core::isTileCode(game.tileCode(x, y)) || game.cellServices(x, y) < 0 ||
          game.cellServices(x, y) > 5 || !flag(game.cellTall(x, y)) ||
          !flag(game.cellDirty(x, y))) {
        return false;
      }
      for (int k = 1; k <= core::kServices; ++k) {
        if (!flag(core::coverGrid(game, k)(x, y)) || !flag(game.roadService[k](x, y)) ||
            !flag(game.cellService[k](x, y))) {
          return false;
        }
      }
    }
  }
  for (int n = 1; n <= core::kTools; ++n) {
    if (game.toolUnlocked[n] != 0 && game.toolUnlocked[n] != 1) return false;
  }
  return true;
}

// Null when the reader keeps its promises.
const char* brokenPromise(const std::string& text, bool& taken) {
  // What they held before must not matter.
  static const auto first = std::make_unique<store::Record>();
  static const auto second = std::make_unique<store::Record>();
  std::string error;
  taken = store::parseRecord(text, *first, error);
  if (!taken) return isShowable(error) ? nullptr : "the message cannot be shown";
  if (!isInside(*first)) return "a value lies outside the tables";
  std::string written, again;
  store::composeRecord(first->game, first->values, written);
  if (!store::parseRecord(written, *second, error)) return "what was written cannot be read";
  store::composeRecord(second->game, second->values, again);
  return written == again ? nullptr : "the record changes when it is written and read";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: vellmoran-fuzz SECONDS [SEED]\n");
    return 2;
  }
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::seconds(std::atoi(argv[1]));
  const std::uint64_t seed =
      argc > 2 ? std::strtoull(argv[2], nullptr, 10) : std::random_device{}();
  std::printf("seed %llu\n", static_cast<unsigned long long>(seed));
  std::fflush(stdout);
  generator.seed(seed);

  std::vector<std::string> pool(8);
  for (std::string& text : pool) text = soundRecord();
  long runs = 0, accepted = 0;
  for (; Clock::now() < end; ++runs) {
    std::string text = pool[draw(pool.size())];
    for (std::size_t n = 1 + draw(3); n > 0; --n) mutate(text, pool[draw(pool.size())]);
    bool taken = false;
    if (const char* const broken = brokenPromise(text, taken)) {
      std::string error;
      platform::writeFile("record_fuzz.failed", text, error);
      std::fprintf(stderr, "text %ld: %s; see record_fuzz.failed\n", runs, broken);
      return 1;
    }
    if (!taken) continue;
    ++accepted;
    // Its forms go on into later texts, as long as they stay of a common size.
    pool[draw(pool.size())] = text.size() < 300000 && chance(90) ? std::move(text) : soundRecord();
  }
  std::printf("%ld texts, %ld of them taken\n", runs, accepted);
  return runs > 0 && accepted > 0 && accepted < runs ? 0 : 1;
}
