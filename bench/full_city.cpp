#include "full_city.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "driver/commands.h"
#include "play/press.h"

namespace bench {

namespace {

constexpr int kFirst = 1;
constexpr int kLast = 29;

/// Which tool fills the block at (x, y): mostly residences, a service in every sixth.
int toolOfBlock(int x, int y) {
  const int n = x / 2 + 3 * (y / 5);
  constexpr int kServices[] = {2, 3, 4, 5};
  return n % 6 == 5 ? kServices[n / 6 % 4] : 1;
}

}  // namespace

FullCity::FullCity() {
  char name[] = "/tmp/vellmoran-bench-XXXXXX";
  folder_ = mkdtemp(name);
  std::string error;
  auto assets = driver::Session::loadAssets(VELLMORAN_BUILD_DIR "/data", error);
  if (assets != nullptr) session_ = driver::Session::start(folder_, assets, error);
  if (session_ == nullptr) {
    std::fprintf(stderr, "%s\n", error.c_str());
    std::exit(1);
  }
  for (const char* command :
       {"seed 1", "click mainnew", "click stopen", "click Check2", "click opengo", "advance 500"}) {
    driver::run(*session_, command);
  }
  for (int y = kFirst; y <= kLast; y += 5) {
    for (int x = kFirst; x <= kLast; ++x) use(8, x, y);
  }
  for (int y = kFirst; y <= 26; ++y) {
    if (y % 5 != 1) use(8, kFirst, y);
  }
  for (int y = kFirst; y < 25; y += 5) {
    for (int x = kFirst + 1; x < kLast; x += 2) {
      use(toolOfBlock(x, y), x, y + 1);
      use(toolOfBlock(x, y + 1), x, y + 3);
    }
  }
  for (int x = kFirst + 2; x < kLast; x += 9) use(6, x, 27);
  for (int x = kFirst + 3; x + 2 <= kLast; x += 9) use(9, x, 27);
  game().gold = 100000;
  game().food = 100000;
  driver::run(*session_, "advance 60000");
}

FullCity::~FullCity() {
  session_.reset();
  std::filesystem::remove_all(folder_);
}

shell::GameScreen& FullCity::screen() {
  return static_cast<shell::GameScreen&>(*session_->program().screen());
}

void FullCity::use(int tool, int x, int y) {
  game().gold = 100000;
  game().cellX = x;
  game().cellY = y;
  play::useTool(scene(), tool, {x, y}, play::User::player);
}

}  // namespace bench
