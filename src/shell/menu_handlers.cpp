// Which handler answers which control and which timer of the menu.
#include <array>

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
    {ui::Label6, 10, clickMission},
    {ui::Label20, 10, clickPuzzle},
    {ui::Picture10, 10, clickPuzzle},
};

constexpr int kChecks[] = {ui::Check1, ui::Check2, ui::Check3, ui::Check4, ui::Check5,
                           ui::Check6, ui::Check7, ui::Check8, ui::Check9};

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
  kTicks[static_cast<std::size_t>(id)](*this);
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
  for (const int box : kChecks) {
    if (box == id) return clickChoice(*this, id);
  }
}

}  // namespace shell
