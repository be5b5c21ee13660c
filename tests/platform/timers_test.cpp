#include "platform/timers.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/virtual/virtual_clock.h"

namespace platform {
namespace {

constexpr TimerDesign kTable[] = {
    {"slow", 100, true},
    {"quick", 40, true},
    {"late", 20},
    {"even", 50, true},
};

struct Bench {
  VirtualClock clock;
  Timers timers{kTable, clock};

  // Jumps to `now` and takes all that is due: "name@now name@now ...".
  std::string jump(std::int64_t now) {
    clock.advanceTo(now);
    std::string ticks;
    for (int id = timers.takeDue(); id >= 0; id = timers.takeDue()) {
      ticks += std::string(timers.name(id)) + " ";
    }
    return ticks;
  }
};

TEST(Timers, TheEarliestDueComesFirstAndTheTableDecidesBetweenEquals) {
  Bench bench;
  EXPECT_EQ(bench.timers.nextDue(), 40);
  EXPECT_EQ(bench.jump(39), "");
  EXPECT_EQ(bench.jump(40), "quick ");
  EXPECT_EQ(bench.jump(50), "even ");
  EXPECT_EQ(bench.jump(80), "quick ");
  EXPECT_EQ(bench.jump(100), "slow even ");
  EXPECT_EQ(bench.jump(159), "quick even ");  // due at 120 and 150
}

TEST(Timers, ALittleLateKeepsTheRhythmAndMissedTicksComeOnce) {
  Bench bench;
  EXPECT_EQ(bench.jump(70), "quick even ");
  EXPECT_EQ(bench.jump(80), "quick ");
  EXPECT_EQ(bench.jump(100), "slow even ");
  EXPECT_EQ(bench.jump(1000), "quick even slow ");
  EXPECT_EQ(bench.timers.nextDue(), 1040);
  EXPECT_EQ(bench.jump(1049), "quick ");
  EXPECT_EQ(bench.jump(1050), "even ");
}

TEST(Timers, SwitchingOnStartsTheIntervalAndChangesNothingWhileItRuns) {
  Bench bench;
  const int late = bench.timers.find("late");
  bench.jump(30);
  bench.timers.enable(late);
  bench.clock.advanceTo(45);
  bench.timers.enable(late);
  EXPECT_EQ(bench.jump(49), "quick ");
  EXPECT_EQ(bench.jump(50), "late even ");
  bench.timers.disable(late);
  bench.jump(69);
  bench.timers.enable(late);
  EXPECT_EQ(bench.jump(88), "quick ");
  EXPECT_EQ(bench.jump(89), "late ");
}

TEST(Timers, AHandlerMaySwitchItsOwnTimerAndThoseThatWait) {
  Bench bench;
  const int slow = bench.timers.find("slow");
  const int even = bench.timers.find("even");
  bench.jump(99);
  bench.clock.advanceTo(100);
  ASSERT_EQ(bench.timers.takeDue(), slow);
  bench.timers.disable(slow);
  bench.timers.disable(even);
  EXPECT_EQ(bench.timers.takeDue(), -1);
  bench.timers.enable(even);  // starts afresh: what was due at 100 is gone
  EXPECT_EQ(bench.jump(149), "quick ");
  EXPECT_EQ(bench.jump(150), "even ");
  for (int id = 0; id < bench.timers.count(); ++id) bench.timers.disable(id);
  EXPECT_EQ(bench.timers.nextDue(), -1);
  EXPECT_EQ(bench.timers.find("missing"), -1);
}

}  // namespace
}  // namespace platform
