// Which handler answers which control and which timer of the menu.
#include <array>

#include "core/missions.h"
#include "shell/menu_campaign.h"
#include "shell/menu_highlight.h"
#include "shell/menu_puzzles.h"
#include "shell/menu_start.h"

namespace shell {

namespace {

namespace ui = menu_control;

using Handler = void (*)(MenuScreen&);
struct ClickRow {
  int control;
  Handler handler;
};
constexpr ClickRow kClicks[] = {
    {ui::mainnew, clickNewGame},        {ui::mainload, clickLoadGame},
    {ui::mainhelp, clickDemonstration}, {ui::maincredits, clickCredits},
    {ui::mainquit, clickExit},          {ui::Command18, closeCredits},
    {ui::stcampaign, showMissions},     {ui::stpuzzle, clickPuzzlePlay},
    {ui::stopen, clickOpenPlay},        {ui::stback, clickBack},
    {ui::campaignback, cancelMissions}, {ui::Command11, cancelBriefing},
    {ui::Command14, playMission},       {ui::Command23, cancelPuzzles},
    {ui::openback, cancelOpenPlay},     {ui::opengo, startOpenPlay},
};

/// Handlers of arrays; they take the index within the array. A puzzle's mark is on its row and
/// counts as the row.
struct ClickArray {
  int first;
  int count;
  void (*handler)(MenuScreen&, int index);
};
constexpr ClickArray kClickArrays[] = {
    {ui::Label6, core::kMissions, clickMission},
    {ui::Label20, core::kPuzzles, clickPuzzle},
    {ui::Picture10, core::kPuzzles, clickPuzzle},
};

// In the order of the timer table.
constexpr std::array<Handler, menu_timer::kTimers.size()> kTicks{
    noticeTick,     // Timer1
    newGameTick,    // Timer2
    missionTick,    // Timer3
    loadPanelTick,  // Timer4
    highlightTick,  // Timer5
};

}  // namespace

void MenuScreen::tick(int id) {
  kTicks[id](*this);
}

void MenuScreen::onMouseMove(int id, int, int) {
  moveOverMenu(*this, id);
}

void MenuScreen::onClick(int id) {
  for (const ClickRow& row : kClicks) {
    if (row.control == id) return row.handler(*this);
  }
  for (const ClickArray& row : kClickArrays) {
    if (id >= row.first && id < row.first + row.count) return row.handler(*this, id - row.first);
  }
  if (form()[id].design->kind == platform::ControlKind::checkBox) clickChoice(*this, id);
}

}  // namespace shell
