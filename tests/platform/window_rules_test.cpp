// What a real window adds to the rules of the game: which presses count, when an edge slides the map,
// when time stands still.
#include <gtest/gtest.h>

#include "platform/edge_pointer.h"
#include "platform/pausing_clock.h"
#include "platform/presses.h"
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

}  // namespace
}  // namespace platform
