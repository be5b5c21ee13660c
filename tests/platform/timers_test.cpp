#include "platform/timers.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/virtual/virtual_clock.h"

namespace platform {
namespace {

constexpr TimerDesign kTable[] = {
    {"slow", 100, true}, {"quick", 40, true}, {"late", 20}, {"even", 50, true}};

struct TimerRules : testing::Test {
  // Jumps to `now` and takes all that is due.
  std::string jump(std::int64_t now) {
    clock_.advanceTo(now);
    std::string ticks;
    for (int id; (id = timers_.takeDue()) >= 0;) ticks += std::string(timers_.name(id)) + " ";
    return ticks;
  }

  VirtualClock clock_;
  Timers timers_{kTable, clock_};
};

TEST_F(TimerRules, TheEarliestComesFirstALittleLateKeepsTheRhythmAndMissedTicksComeOnce) {
  EXPECT_EQ(timers_.nextDue(), 40);
  EXPECT_EQ(jump(39), "");
  EXPECT_EQ(jump(40), "quick ");
  EXPECT_EQ(jump(70), "even ");
  EXPECT_EQ(jump(100), "quick slow even ") << "the table decides between equals";
  EXPECT_EQ(jump(159), "quick even ");
  EXPECT_EQ(jump(1000), "quick slow even ");
  EXPECT_EQ(jump(1049), "quick ");
}

TEST_F(TimerRules, SwitchingOnStartsTheIntervalAndDropsWhatWasDueButNotWhileItRuns) {
  enum { slow, quick, late, even };
  jump(30);
  timers_.enable(late);
  clock_.advanceTo(45);
  timers_.enable(late);
  EXPECT_EQ(jump(50), "quick late even ");
  timers_.disable(late);
  jump(99);
  clock_.advanceTo(100);
  ASSERT_EQ(timers_.takeDue(), slow);
  timers_.disable(slow);
  timers_.disable(even);
  EXPECT_EQ(timers_.takeDue(), -1);
  timers_.enable(even);
  EXPECT_EQ(jump(149), "quick ");
  for (int id = 0; id < timers_.count(); ++id) timers_.disable(id);
  EXPECT_EQ(timers_.nextDue(), -1);
}

}  // namespace
}  // namespace platform
