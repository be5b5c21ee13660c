#include "play/tooltips.h"

#include "core/buildings.h"
#include "core/number_text.h"
#include "map/views.h"
#include "play/game_controls.h"
#include "play/preferences.h"

namespace play {

namespace {

namespace ui = play::game_control;

struct Row {
  int control;
  const char* text;
};
constexpr Row kRows[] = {
    {ui::pop1, "The population of your settlement"},
    {ui::para1, "The amount of gold in the treasury"},
    {ui::FoodS, "The amount of food stored"},
    {ui::tarih, "The month and the year"},

    {ui::Statusreport, "The book of the last months, the ratings and the tax"},
    {ui::Command5, "Music, sounds, the speed of the game"},
    {ui::inform, "Find out what is on the map: press on it"},
    {ui::building, "Build again, with the road in hand"},
    {ui::gmmenu, "Save, load or quit the game"},
    {ui::Label3, "What you have to reach"},

    {ui::buildsize, "How far it reaches each way, in cells"},
    {ui::poplbl, "How many people it can hold"},
    {ui::mailbl, "Its upkeep, in gold a month"},
    {ui::totlbl, "How many services have it in their area, with or without a road"},

    {ui::stpop, "The people of your settlement"},
    {ui::stnetim, "Who came in the month, less those who left"},
    {ui::sttax, "The gold that came in from the tax"},
    {ui::stmaint, "The gold that went into the upkeep of buildings"},
    {ui::stconst, "The gold that went into new buildings"},
    {ui::stnetin, "Taxes less upkeep and construction"},
    {ui::stfoodpro, "The harvest that comes in at the end of the month"},
    {ui::stfoodcon, "The food that is eaten at the end of the month"},
    {ui::ststored, "The food in store"},
    {ui::taxLabel, "The lower the tax, the more people a residence holds"},
    {ui::showtaxrate, "The lower the tax, the more people a residence holds"},
    {ui::taxrateminus, "Lower the tax"},
    {ui::taxrateplus, "Raise the tax"},

    {ui::gamespeedminus, "Slower"},
    {ui::gamespeedplus, "Faster"},
    {ui::Label13, "Whether crops are seen to grow"},
    {ui::Label12, "Whether people are seen to walk on the roads"},
};

void append(std::string& text, const char* before, double number, const char* after) {
  text += before;
  text += core::NumberText(number).view();
  text += after;
}

/// Name, price, upkeep and reach of the tool of a palette key.
std::string describeTool(int index, std::string_view name) {
  const int tool = core::toolOfKey(index);
  std::string text(name);
  if (tool == core::kDemolishTool) return text + ": costs nothing and pays nothing back";
  const core::Building& building = *core::buildingOfTool(tool);
  append(text, ": ", building.price, " gold");
  if (building.upkeep == 0) {
    text += ", no upkeep";
  } else {
    append(text, "\nUpkeep ", building.upkeep, " gold a month");
  }
  if (building.reach != 0) append(text, "\nReaches ", building.reach, " cells each way");
  return text;
}

std::string describeSpeed() {
  std::string text;
  append(text, "A month lasts ", kNormal, " seconds; ");
  append(text, "fast ", kFast, ", ");
  append(text, "slow ", kSlow, ".\nA new speed counts from the next month on.");
  return text;
}

}  // namespace

void writeTooltips(platform::Form& form) {
  for (const Row& row : kRows) form[row.control].tooltip = row.text;
  for (int k = 1; k <= core::kServices; ++k) {
    const std::string word(core::buildingOfService(k).word);
    form[ui::kAccessLabels[k - 1]].tooltip = "Whether a " + word + " reaches it by road";
    form[ui::kRatingLabels[k - 1]].tooltip = "How many of 100 residences a " + word + " reaches";
  }
  for (int n = 0; n < ui::kViewKeys; ++n) form[ui::seer + n].tooltip = map::viewName(n);
  for (int n = 0; n < ui::kToolKeys; ++n) {
    form[ui::Command1 + n].tooltip = describeTool(n, form[ui::Command1 + n].text);
  }
  form[ui::Label7].tooltip = form[ui::gamespeed].tooltip = describeSpeed();
}

}  // namespace play
