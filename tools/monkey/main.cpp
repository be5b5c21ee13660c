// Plays the whole program at random: vellmoran-monkey EVENTS [SEED]
//
// Clicks, moves, keys, waits, in every mode, with loads and saves, also of files that are damaged on
// the way. After every event the invariants are checked (watch.h). The same seed gives the same
// play. Ends with 1 at the first thing that is wrong: it prints the last commands, and saves the whole
// script and two pictures of what differs.
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "driver/commands.h"
#include "monkey/hands.h"
#include "monkey/mischief.h"
#include "monkey/watch.h"
#include "platform/program_folder.h"

namespace {

constexpr int kDearEvery = 16;
constexpr int kPicturesEvery = 128;
constexpr int kMischiefEvery = 100;
constexpr int kPaintEvery = 3;

class Monkey {
 public:
  Monkey(std::uint64_t seed, const std::string& folder, std::shared_ptr<shell::Assets> assets)
      : chance_(seed),
        folder_(folder),
        assets_(std::move(assets)),
        hands_(chance_),
        mischief_(chance_, folder_),
        watch_(mischief_, *assets_),
        script_(folder_ + "/../script.txt") {}

  bool play(long events) {
    for (event_ = 1; event_ <= events; ++event_) {
      if (session_ == nullptr || session_->program().ended()) {
        if (!start()) return false;
      }
      watch_.before();
      if (event_ % kMischiefEvery == 0) {
        note("# " + mischief_.play());
      } else {
        act(hands_.next(*session_));
      }
      watch_.after(event_ % kDearEvery == 0);
      if (event_ % kPaintEvery == 0) session_->program().paint();
      if (event_ % kPicturesEvery == 0) watch_.pictures();
      if (!watch_.fault().empty()) {
        std::printf("event %ld: %s\n", event_, watch_.fault().c_str());
        return false;
      }
    }
    return true;
  }

  void report() const {
    const auto& tally = watch_.tally();
    std::printf("%d runs of the program; games by mission (0: the load panel):", runs_);
    for (std::size_t n = 0; n < tally.games.size(); ++n) {
      if (tally.games[n] > 0) std::printf(" %zu:%ld", n, tally.games[n]);
    }
    std::printf(
        "\n%ld sound and %ld spoilt games loaded; roads lost %ld, quakes %ld; missions won %ld, "
        "failed "
        "%ld; puzzles ended %ld; %.0f people and %d apartments at most\n",
        tally.loads, tally.spoiltLoads, tally.losses, tally.quakes, tally.won, tally.failed,
        tally.solved, tally.mostPeople, tally.mostApartments);
  }

 private:
  bool start() {
    session_.reset();
    std::string error;
    session_ = driver::Session::start(folder_, assets_, error);
    if (session_ == nullptr) {
      std::printf("%s\n", error.c_str());
      return false;
    }
    ++runs_;
    watch_.begin(*session_);
    act("seed " + std::to_string(chance_.seed()));
    return true;
  }

  void act(const std::string& command) {
    note(command);
    int number = 0;
    if (std::sscanf(command.c_str(), "advance %d", &number) == 1) {
      wait(number);
    } else if (std::sscanf(command.c_str(), "wheel %d", &number) == 1) {
      session_->program().desk().wheel(number);
      session_->program().settle();
    } else {
      driver::run(*session_, command);
    }
  }

  void wait(int milliseconds) {
    while (milliseconds > 0 && !session_->program().ended()) {
      const int stretch = std::min(milliseconds, watch_.stretch());
      session_->advance(stretch);
      milliseconds -= stretch;
      watch_.step();
    }
  }

  void note(const std::string& command) { script_ << command << '\n' << std::flush; }

  monkey::Chance chance_;
  std::string folder_;
  std::shared_ptr<shell::Assets> assets_;
  monkey::Hands hands_;
  monkey::Mischief mischief_;
  monkey::Watch watch_;
  std::unique_ptr<driver::Session> session_;
  std::ofstream script_;
  long event_ = 0;
  int runs_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  const auto number = [&](int n, long otherwise) {
    return argc > n ? std::strtol(argv[n], nullptr, 10) : otherwise;
  };
  const long events = number(1, 0);
  const auto seed = static_cast<std::uint64_t>(number(2, 1));
  if (events <= 0 || argc > 3) {
    std::fprintf(stderr, "usage: vellmoran-monkey EVENTS [SEED]\n");
    return 2;
  }
  std::string error;
  const auto assets = driver::Session::loadAssets(platform::executableFolder() + "/data", error);
  if (assets == nullptr) {
    std::fprintf(stderr, "vellmoran-monkey: %s\n", error.c_str());
    return 2;
  }
  // Two folders deep: a name with dots in it may lead upwards.
  char outer[] = "/tmp/vellmoran-monkey-XXXXXX";
  if (mkdtemp(outer) == nullptr) return 2;
  const std::string folder = std::string(outer) + "/in/here";
  std::filesystem::create_directories(folder);

  std::printf("seed %llu\n", static_cast<unsigned long long>(seed));
  std::fflush(stdout);
  bool good = false;
  {
    Monkey monkey(seed, folder, assets);
    good = monkey.play(events);
    monkey.report();
  }
  std::filesystem::current_path("/");
  if (!good) {
    std::printf("seed %llu; all commands in %s/in/script.txt\n",
                static_cast<unsigned long long>(seed), outer);
    return 1;
  }
  std::filesystem::remove_all(outer);
  std::printf("%ld events: nothing wrong\n", events);
  return 0;
}
