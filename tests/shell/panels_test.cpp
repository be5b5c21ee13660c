// What the captions of the panels say is what the game does.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "core/vocabulary.h"
#include "shell/script_runner.h"

namespace {

using script::Play;
namespace ui = script::ui;

std::string number(double value) {
  return std::to_string(static_cast<int>(value));
}

std::string upper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

TEST(Panels, KeysOfTheSidePanelTakeAPressJustWhereTheyLight) {
  Play play("open-play");
  for (const int key : {ui::Statusreport, ui::Command5, ui::gmmenu, ui::Label3}) {
    const platform::Rect place = play.form().onScreen(key);
    int lit = 0;
    for (int y = place.top - 12; y < place.bottom() + 12; ++y) {
      for (const int x : {644, 645, 712, 779, 780}) {
        play.run("pointer " + number(x) + " " + number(y) + "; advance 25");
        const bool lights = play.form()[key].fore == platform::kYellow;
        const bool takes = play.program().desk().topmost({x, y}) == key;
        EXPECT_EQ(takes, lights) << play.form()[key].design->name << " " << x << " " << y;
        lit += lights;
      }
    }
    EXPECT_GT(lit, 60);
  }
}

TEST(Panels, EveryToolDoesWhatItsCaptionsSay) {
  Play play("open-play");  // with the road in hand
  EXPECT_EQ(play.text(ui::buildprice),
            "Price:" + number(core::buildingOfTool(core::kRoadTool)->price));
  play.run("set population=1000; advance 1000; click Command21; set gold=5000");
  for (int y = 10; y <= 20; ++y) play.run("press @15," + std::to_string(y));
  struct Site {
    int button, x, y;
  };
  const Site sites[] = {{7, 9, 10},  {0, 13, 10}, {8, 10, 16}, {1, 16, 10},
                        {4, 16, 12}, {2, 16, 14}, {5, 16, 16}, {3, 16, 18}};
  for (const Site& site : sites) {
    const std::string press = "press @" + number(site.x) + "," + number(site.y);
    play.run("click building, Command1 " + number(site.button));
    const std::string name = play.text(ui::buildcurrent);
    const double gold = play.state().gold;
    const double id = play.state().nextBuildingId;
    play.run(press);
    const std::string price = number(gold - play.state().gold);
    EXPECT_EQ(play.text(ui::buildprice), "Price:" + price);
    std::string tip = play.text(ui::Command1 + site.button) + ": " + price + " gold";
    int cells = 0;
    for (int y = 0; y <= 30; ++y) {
      for (int x = 0; x <= 30; ++x) cells += play.state().buildingId(x, y) == id;
    }
    EXPECT_EQ(cells, play.state().cursorFootprint * play.state().cursorFootprint) << name;

    const double upkeep = play.state().maintenancePerMonth;
    play.run("advance 1000; click inform; " + press);
    const std::string added = number(play.state().maintenancePerMonth - upkeep);
    EXPECT_EQ(play.text(ui::mailbl), "Maintenance:" + added);
    tip += added == "0" ? ", no upkeep" : "\nUpkeep " + added + " gold a month";
    EXPECT_EQ(upper(name), "CURRENT:" + (site.button == 0 ? "HOUSE" : play.text(ui::namlbl)));
    const std::string area = play.text(ui::buildsize).substr(std::string("Effect area:").size());
    const int k = core::serviceOfCode(play.state().tileCode(site.x, site.y));
    if (k != 0) tip += "\nReaches " + area.substr(0, 1) + " cells each way";
    EXPECT_EQ(play.form()[ui::Command1 + site.button].tooltip, tip);
    if (k == 0) {
      EXPECT_EQ(area, "-");
      continue;
    }
    const auto& cover = core::coverGrid(play.state(), k);
    EXPECT_EQ(area, number(area[0] - '0') + "x" + area[0]);
    EXPECT_EQ(cover(site.x - (area[0] - '0'), site.y), 1) << name;
    EXPECT_EQ(cover(site.x - (area[0] - '0') - 1, site.y), 0) << name;
  }
  play.run("press @13,10; namlbl: text=\"TENT\"");
  play.run("press @20,20; namlbl: text=\"EMPTY LAND\"; mailbl: text=\"Maintenance:-\"");
  play.run("click building, Command1(6); namlbl: text=\"\"");
  play.run("buildcurrent: text=\"Current:Demolish\"; buildprice: text=\"Price:-\"");
}

TEST(Panels, TheKeysOfTheToolTheModeAndTheViewAreHeldDown) {
  Play play("open-play");
  const platform::Form& form = play.form();
  const auto held = [&form] {
    std::string names;
    for (int id = 0; id < form.count(); ++id) {
      if (form[id].held) names += form[id].text.view(), names += ' ';
    }
    return names;
  };
  EXPECT_EQ(held(), "N BUILD Road ") << "a new game begins with the road";
  play.run("set population=1000; advance 1000; click Command21, seer(3)");
  for (int n = 0; n <= 8; ++n) {
    play.run("click Command1 " + number(n));
    const std::string_view name = form[ui::Command1 + n].text.view();
    EXPECT_EQ(held(), "T BUILD " + std::string(name) + " ");
  }
  play.run("click inform");
  EXPECT_EQ(held(), "T INFO ");
  play.run("click building");
  EXPECT_EQ(held(), "T BUILD Road ");
  play.run("save town; load town");
  EXPECT_EQ(held(), "N INFO ") << "a loaded game opens in the info mode";
}

TEST(Panels, ControlsWithoutAFullCaptionHaveATooltip) {
  Play play("open-play");
  const platform::Form& form = play.form();
  constexpr int kControls[] = {ui::pop1,   ui::tarih,       ui::Statusreport,
                               ui::stpop,  ui::showtaxrate, ui::Command1 + 8,
                               ui::tavrat, ui::gamespeed,   ui::inform};
  for (const int control : kControls) {
    EXPECT_FALSE(form[control].tooltip.empty()) << form[control].design->name;
  }
  for (int view = 0; view < 6; ++view) {
    play.run("click seer " + number(view));
    EXPECT_EQ(form[ui::seer + view].tooltip, play.text(ui::currentview));
  }
  const auto secondsOfMonth = [&play] {
    play.run("next-month");
    const double month = play.state().month;
    int seconds = 0;
    for (; play.state().month == month; ++seconds) play.run("advance 1000");
    return number(seconds);
  };
  play.run("click Command5");
  const std::string normal = secondsOfMonth();
  play.run("click gamespeedplus");
  const std::string fast = secondsOfMonth();
  play.run("click gamespeedminus, gamespeedminus");
  EXPECT_EQ(form[ui::gamespeed].tooltip, "A month lasts " + normal + " seconds; fast " + fast +
                                             ", slow " + secondsOfMonth() +
                                             ".\nA new speed counts from the next month on.");
}

}  // namespace
