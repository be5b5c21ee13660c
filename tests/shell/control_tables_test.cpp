// The control tables of both screens as data: everything is inside its parent, nothing hides
// what a player presses or reads, and every caption fits its box in the real font.
#include <gtest/gtest.h>

#include <set>

#include "core/buildings.h"
#include "core/missions.h"
#include "map/views.h"
#include "platform/layout.h"
#include "scenario/letters.h"
#include "shell/script_runner.h"
#include "sim/population.h"

namespace {

using platform::Control;
using platform::ControlKind;
using script::Play;
using Names = std::set<std::string>;

constexpr platform::Rect kScreen{0, 0, 800, 600};

bool inside(const platform::Rect& inner, const platform::Rect& outer) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right() <= outer.right() &&
         inner.bottom() <= outer.bottom();
}

/// Calls `look` for each control but the lines of the cursor, on the screen that is open.
template <class Look>
void each(Play& play, Look look) {
  platform::Form& form = play.form();
  for (int id = 0; id < form.count(); ++id) {
    if (form[id].design->kind != ControlKind::line)
      look(form, id, std::string(form[id].design->name));
  }
}

Names reachingOut(Play& play) {
  Names names;
  each(play, [&](platform::Form& form, int id, const std::string& name) {
    const Control& control = form[id];
    const int parent = control.design->parent;
    if (parent == platform::kNoParent) {
      const bool parked = control.place.left >= kScreen.right();
      if (!parked && !inside(control.place, kScreen)) names.insert(name);
    } else {
      const platform::Rect& holder = form[parent].place;
      if (!inside(control.place, {0, 0, holder.width, holder.height})) names.insert(name);
    }
  });
  return names;
}

/// Pairs of siblings in one panel that overlap, plates aside. A row or a column of pixels
/// may be shared: that is how the tables and the rows of buttons are laid.
Names overlapping(Play& play) {
  Names names;
  each(play, [&](platform::Form& form, int id, const std::string& name) {
    const Control& lower = form[id];
    const ControlKind kind = lower.design->kind;
    const bool plate = kind == ControlKind::box || kind == ControlKind::image;
    const bool parked = lower.place.left >= kScreen.right();
    if (plate || parked || kind == ControlKind::picture) return;
    each(play, [&](platform::Form&, int other, const std::string& otherName) {
      if (other <= id || form[other].design->parent != lower.design->parent) return;
      const platform::Rect shared = intersection(lower.place, form[other].place);
      if (shared.width > 1 && shared.height > 1) names.insert(name + " " + otherName);
    });
  });
  return names;
}

/// Faces that reach out of what holds their control, or over the face of another.
Names misplacedFaces(Play& play) {
  Names names;
  each(play, [&](platform::Form& form, int id, const std::string& name) {
    const platform::ControlDesign& design = *form[id].design;
    if (design.face == platform::Face::none) return;
    const platform::Rect& holder = form[design.parent].place;
    if (!inside(design.faceBox, {0, 0, holder.width, holder.height})) names.insert(name);
    each(play, [&](platform::Form&, int other, const std::string& otherName) {
      const platform::ControlDesign& next = *form[other].design;
      if (other <= id || next.parent != design.parent || next.face == platform::Face::none) return;
      if (!intersection(design.faceBox, next.faceBox).empty()) names.insert(name + " " + otherName);
    });
  });
  return names;
}

TEST(ControlTables, HoldEveryControlInItsPlace) {
  Play play;
  EXPECT_EQ(reachingOut(play), Names{});
  EXPECT_EQ(misplacedFaces(play), Names{});
  Names marks;  // the mark of a solved level is on its row
  for (int n = 10; n <= 19; ++n) marks.insert("Label20 Picture" + std::to_string(n));
  EXPECT_EQ(overlapping(play), marks);

  play.run("open-play");
  // The map slides under the screen; the plate of the right-hand panel goes on behind its rim.
  EXPECT_EQ(reachingOut(play), (Names{"Frame6", "picScroll"}));
  EXPECT_EQ(misplacedFaces(play), Names{});
  // The name of what the info mode found takes the place of the tool's name and price; the two lines
  // that end the demonstration are set close; GOALS takes presses past the rim of its plate.
  EXPECT_EQ(overlapping(play), (Names{"Frame7 Label3", "Label16 Label17", "buildcurrent namlbl",
                                      "buildprice namlbl"}));

  // What the player never sees side by side with the palette may lie over it: the info panel does.
  play.run("click inform");
  platform::Form& form = play.form();
  EXPECT_TRUE(inside(form[form.find("tileinfo")].place, form.onScreen(form.find("Frame1"))));
  // The banner of the demonstration reaches past the rim by a pixel, over the panel that is hidden.
  play.run("menu; click mainhelp; advance 500");
  EXPECT_EQ(reachingOut(play), (Names{"Frame20", "Frame6", "picScroll"}));
}

/// Whether a control shows a text whole.
bool fits(const Control& control, std::string_view text, platform::Font& font) {
  const platform::ControlDesign& design = *control.design;
  const platform::Rect& place = control.place;
  const int width = font.width(text, design.font);
  const int line = platform::lineHeight(design.font);
  switch (design.kind) {
    case ControlKind::frame:
      if (design.heading == platform::Heading::none) return true;
      return width + 2 * 9 <= place.width;
    case ControlKind::checkBox:
      return width + 18 <= place.width;
    case ControlKind::button:
      return width + 6 <= place.width && line <= place.height + 2;
    default:
      break;
  }
  if (design.face == platform::Face::key) {
    // Five pixels to the rim on either side, the letters drawn together by a pixel at most.
    const int gaps = std::max(0, static_cast<int>(text.size()) - 1);
    return width - gaps <= design.faceBox.width - 2 * 6 && line <= design.faceBox.height;
  }
  const int sides = design.border ? 4 : 0;
  const platform::Size size = measureLines(text, place.width - sides, font, design.font);
  return size.width <= place.width - sides && size.height * line <= place.height + 4;
}

TEST(ControlTables, ShowEveryCaptionWhole) {
  Play play;
  platform::Font& font = play.session().font();
  const auto check = [&](const char* name, std::string_view text) {
    platform::Form& form = play.form();
    EXPECT_TRUE(fits(form[form.find(name)], text, font)) << name << ": " << text;
  };
  const auto checkDesigns = [&] {
    each(play, [&](platform::Form& form, int id, const std::string& name) {
      EXPECT_TRUE(fits(form[id], form[id].text, font)) << name << ": " << form[id].text.view();
    });
  };
  checkDesigns();
  for (int number = 1; number <= core::kCampaignWon; ++number) {
    for (const auto set : {scenario::LetterSet::list, scenario::LetterSet::homecoming}) {
      check("cpgninfo", scenario::letter(number, set));
      check("goalinfo", scenario::briefingGoal(number, set));
    }
  }
  check("difflbl", "Difficulty: Intermediate");
  check("mapsizelbl", "Map size: Very Small");
  check("statuslbl", "Status: NOT COMPLETED");
  check("openplaydiff", "Overall difficulty:200.8125%");
  play.run("click mainnew");
  for (const char* row : {"stcampaign", "stpuzzle", "stopen", "stback"}) {
    play.run(std::string("hover ") + row);
    checkDesigns();
  }

  play.run("click stopen, opengo; advance 500");
  checkDesigns();
  for (int mission = 1; mission <= core::kLastPuzzle; ++mission) {
    platform::Text text;
    core::writeGoalNotice(text, mission);
    check("bilgilabel", text);
    if (!core::isPuzzle(mission)) continue;
    check("Label18", std::string(core::puzzle(mission).goalText) + " (current:23.75)");
  }
  for (const int service : sim::kMilestones) {
    platform::Text text;
    core::writeUnlockNotice(text, core::buildingOfService(service));
    check("bilgilabel", text);
  }
  check("bilgilabel",
        "Disaster!A terrible earthquake hit your settlement,many buildings are collapsed and 1234 "
        "people died.");
  check("bilgilabel", "Theft! 123456 golds are stolen from your treasury.");
  for (int view = 0; view <= core::kServices; ++view) check("currentview", map::viewName(view));
  for (const char* banner :
       {"Famine started,people leave your city!", "You don't have enough money",
        "Switch to normal view first", "End of demonstration"}) {
    check("haber", banner);
  }
  check("Command4", "MISSION COMPLETED");
  check("pop1", "Population:12345");
  check("para1", "Gold:-123456");
  check("FoodS", "Food:123456");
  check("tarih", "Date: 12 / 1799");
  check("mailbl", "Maintenance:50");
  check("poplbl", "Max. housing:123.25");
  check("buildsize", "Effect area:5x5");
  check("stlbl1", "-12345.75");
  check("mon1lbl", "12 / 1799");
}

}  // namespace
