// The status report over the months, and what opens and closes beside it.
#include <gtest/gtest.h>

#include "shell/open_game.h"

namespace {

using script::OpenGame;
namespace ui = script::ui;

std::string headings(OpenGame& play) {
  return play.text(ui::mon1lbl) + " " + play.text(ui::mon2lbl) + " " + play.text(ui::mon3lbl) +
         " " + play.text(ui::mon4lbl);
}

/// One row of the four columns.
std::string row(OpenGame& play, int n) {
  return play.text(ui::stlbl1 + n) + " " + play.text(ui::stlbl2 + n) + " " +
         play.text(ui::stlbl3 + n) + " " + play.text(ui::stlbl4 + n);
}

TEST(StatusReport, MonthsFillFromTheLeftThenRollAndGoOnInTheFourthColumnAfterTheWrap) {
  OpenGame play;
  play.run("press @15,15\nclick Statusreport");
  EXPECT_EQ(headings(play), "1/1715   ");
  EXPECT_EQ(row(play, 4), "-5 0 0 0");
  // Open across the month's end: the columns follow at that tick, with no press.
  play.run("set housingCapacity 50\nset population 50");
  play.endMonth();
  EXPECT_EQ(headings(play), "1/1715 2/1715  ");
  EXPECT_EQ(row(play, 0), "0 50 0 0");
  play.run("set housingCapacity 40\nset population 40");
  play.endMonth();
  play.endMonth();
  EXPECT_EQ(headings(play), "1/1715 2/1715 3/1715 4/1715");
  EXPECT_EQ(row(play, 1), "0 50 -10 0");
  play.run("set month 12");
  play.endMonth();
  EXPECT_EQ(headings(play), "10/1715 11/1715 12/1715 1/1716");
  EXPECT_EQ(row(play, 0), "50 40 40 40");
  // The 43rd month lives for one tick; behind it come the columns that the first months left.
  play.run("set historyIndex 42\nset month 5");
  play.endMonth();
  EXPECT_EQ(play.state().historyIndex, 43);
  EXPECT_EQ(headings(play), "3/1716 4/1716 5/1716 6/1716");
  play.run("advance 1000");
  EXPECT_EQ(play.state().historyIndex, 4);
  EXPECT_EQ(headings(play), "3/1716 4/1716 5/1716 6/1716");
  EXPECT_EQ(row(play, 0), "0 50 40 40");
  EXPECT_EQ(row(play, 1), "0 50 -10 0");
}

TEST(StatusReport, AnOpeningBringsTheBookUpToDateButForTheRatings) {
  OpenGame play;
  play.run("press @15,15\nclick Command1 0\npress @16,15\nadvance 1000\nset population 5");
  play.run(
      "set cellService 1 16 15 1\nset cellService 1 17 15 1\nset taxRate 20\nclick Statusreport");
  EXPECT_EQ(play.text(ui::stlbl1), "5");
  EXPECT_EQ(play.text(ui::showtaxrate), "20");
  EXPECT_EQ(play.text(ui::stlbl1 + 9), "0");
  EXPECT_EQ(play.state().marketRating, 50);
  play.run("advance 1000");
  EXPECT_EQ(play.text(ui::stlbl1 + 9), "50");
}

TEST(StatusReport, ItAndTheLegendGiveWayToEachOtherAsDoLegendAndGoal) {
  OpenGame play;
  play.run("click seer 1");
  EXPECT_TRUE(play.shown(ui::Frame13));
  EXPECT_EQ(play.text(ui::currentview), "Market access");
  play.run("click Statusreport");
  EXPECT_FALSE(play.shown(ui::Frame13));
  play.run("click seer 4");
  EXPECT_FALSE(play.shown(ui::Frame13));
  play.run("click statusclose");
  EXPECT_TRUE(play.shown(ui::Frame13));
  play.run("click seer 0");
  EXPECT_FALSE(play.shown(ui::Frame13));
  play.run("click Statusreport\nclick statusclose");
  EXPECT_FALSE(play.shown(ui::Frame13));

  play.run("click gmmenu\nclick Command19\nclick mainnew\nclick stpuzzle\nclick Label20 0");
  play.run("advance 1500");
  EXPECT_TRUE(play.shown(ui::Frame21));
  play.run("click seer 5\nadvance 2000");
  EXPECT_FALSE(play.shown(ui::Frame21));
  EXPECT_TRUE(play.shown(ui::Frame13));
  play.run("click seer 0");
  EXPECT_TRUE(play.shown(ui::Frame21));
}

}  // namespace
