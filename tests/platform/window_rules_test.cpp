// Timers, and what a real window adds to the rules of the game: which presses count, when an edge slides
// the map, when time stops.
#include <gtest/gtest.h>

#include <string>

#include "platform/edge_pointer.h"
#include "platform/pausing_clock.h"
#include "platform/presses.h"
#include "platform/timers.h"
#include "platform/virtual/virtual_clock.h"

namespace platform {
namespace {

constexpr int kLeft = 1, kRight = 3;

TEST(Presses, OfTwoButtonsAreTwoAndALostReleaseBlocksNothing) {
  Presses presses;
  EXPECT_TRUE(presses.down(kLeft, 1000));
  EXPECT_TRUE(presses.down(kRight, 1010)) << "while the other is held";
  EXPECT_FALSE(presses.up(kLeft)) << "its press has given way to the second";
  EXPECT_TRUE(presses.up(kRight));
  EXPECT_FALSE(presses.up(kRight));
  EXPECT_TRUE(presses.down(kLeft, 1020)) << "its release is lost";
  EXPECT_TRUE(presses.down(kLeft, 1030));
  EXPECT_TRUE(presses.up(kLeft));
}

TEST(Presses, MeantForTheOldScreenDoNotReachTheNewOne) {
  Presses presses;
  EXPECT_TRUE(presses.down(kLeft, 900));
  presses.screenOpened(1000);
  EXPECT_FALSE(presses.up(kLeft)) << "went down on the old screen";
  EXPECT_FALSE(presses.down(kLeft, 1000));
  EXPECT_FALSE(presses.up(kLeft));
  EXPECT_FALSE(presses.down(kLeft, 1399));
  EXPECT_FALSE(presses.up(kLeft));
  EXPECT_TRUE(presses.down(kLeft, 1400));
  EXPECT_TRUE(presses.up(kLeft));
}

TEST(EdgePointer, ScrollsAtOnceOnAFullScreenThatHasTheFocusAndThePointer) {
  EdgePointer edge;
  edge.moved({0, 300}, true, 1000);
  EXPECT_TRUE(edge.scrolls(1000));
  edge.setFocus(false);
  EXPECT_FALSE(edge.scrolls(5000));
  edge.setFocus(true);
  edge.left();
  EXPECT_FALSE(edge.scrolls(5000));
  edge.moved({0, 300}, false, 5000);
  EXPECT_FALSE(edge.scrolls(5500)) << "dragged beyond the window";
}

TEST(EdgePointer, ScrollsInAWindowAfterARestThatLastsAsLongAsItStaysAtTheEdge) {
  EdgePointer edge;
  edge.setFull(false);
  edge.moved({400, 300}, true, 500);
  for (int now = 1000; now < 1400; now += 100) {  // slowly on its way out
    edge.moved({9 - now / 200, 300}, true, now);
    EXPECT_FALSE(edge.scrolls(now + 99));
  }
  EXPECT_TRUE(edge.scrolls(1300 + 150));
  edge.moved({2, 400}, true, 1460);
  EXPECT_TRUE(edge.scrolls(1460)) << "along the edge";
  edge.moved({400, 300}, true, 1500);
  edge.moved({799, 300}, true, 2000);
  EXPECT_FALSE(edge.scrolls(2100)) << "another edge, another rest";
}

TEST(PausingClock, GoesOnAtTheMillisecondAtWhichItStopped) {
  VirtualClock real;
  PausingClock clock(real);
  for (int pauses = 0; pauses < 2; ++pauses) {
    const std::int64_t before = clock.milliseconds();
    real.advanceTo(real.milliseconds() + 30);
    clock.setPaused(true);
    real.advanceTo(real.milliseconds() + 5000);
    clock.setPaused(true);
    EXPECT_EQ(clock.milliseconds(), before + 30);
    clock.setPaused(false);
    clock.setPaused(false);
    EXPECT_EQ(clock.milliseconds(), before + 30);
    real.advanceTo(real.milliseconds() + 7);
    EXPECT_EQ(clock.milliseconds(), before + 37);
  }
}

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
