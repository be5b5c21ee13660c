#include "shell/menu_highlight.h"

#include <span>

#include "core/missions.h"
#include "shell/menu_campaign.h"
#include "shell/menu_puzzles.h"
#include "shell/program.h"

namespace shell {

namespace ui = menu_control;

namespace {

constexpr int kStartRows = ui::Frame7;
constexpr int kHint = ui::Label4;
constexpr int kMissionRows = ui::Label6;
constexpr int kPuzzleRows = ui::Label20;

constexpr platform::Color kRowGround{203, 221, 241};
constexpr platform::Color kLitGround{225, 238, 253};

/// A row and the band of the screen, bounds included, in which it lights. The bands are constants of
/// the layout; they do not follow the panels.
struct Band {
  int row;
  int top;
  int bottom;
};
constexpr int kBandLeft = 330;
constexpr int kBandRight = 470;
constexpr Band kMainBands[] = {{ui::mainnew, 241, 264},
                               {ui::mainload, 281, 304},
                               {ui::mainhelp, 321, 344},
                               {ui::maincredits, 361, 384},
                               {ui::mainquit, 401, 424}};
constexpr Band kStartBands[] = {{ui::stcampaign, 169, 189},
                                {ui::stpuzzle, 209, 229},
                                {ui::stopen, 249, 269},
                                {ui::stback, 409, 429}};

struct Hint {
  int row;
  const char* text;
};
constexpr Hint kHints[] = {
    {ui::stcampaign,
     " In the campaign mode you are offered ten missions with increasing difficulty"},
    {ui::stopen,
     "In the open play mode, there are no specific goals to be met,you can build your city as you "
     "like"},
    {ui::stpuzzle, "This is a funny but difficult mode,consists of ten challenging missions"},
    {ui::stback, "Back to main menu"},
};

/// The hint of a row; none for what else is in the frame of the rows.
const char* hintOf(int control) {
  for (const Hint& hint : kHints) {
    if (hint.row == control) return hint.text;
  }
  return "";
}

void highlight(MenuScreen& menu, std::span<const Band> bands, int& lastRow) {
  const platform::Point pointer = menu.program().desk().pointer();
  lastRow = 0;
  int number = 0;
  for (const Band& band : bands) {
    ++number;
    platform::Color& color = menu.form()[band.row].fore;
    const bool lit = pointer.x >= kBandLeft && pointer.x <= kBandRight && pointer.y >= band.top &&
                     pointer.y <= band.bottom;
    if (!lit) {
      color = platform::kBlack;
      continue;
    }
    lastRow = number;
    if (color == platform::kYellow) continue;
    color = platform::kYellow;
    if (menu.values().gSoundOn == 1) menu.cue(sound::kTool);
  }
}

}  // namespace

void moveOverMenu(MenuScreen& menu, int control) {
  platform::Form& form = menu.form();
  for (const Band& row : kMainBands) {
    if (row.row != control) continue;
    for (const Band& other : kMainBands) {
      form[other.row].back = other.row == control ? kLitGround : kRowGround;
    }
  }
  if (control == kStartRows || form[control].design->parent == kStartRows) {
    menu.text(kHint).assign(hintOf(control));
  }
  if (control >= kMissionRows && control < kMissionRows + core::kMissions) {
    hoverMission(menu, control - kMissionRows);
  }
  if (control == ui::Frame9 || control == ui::Command1) leaveMissionRows(menu);
  if (control >= kPuzzleRows && control < kPuzzleRows + core::kPuzzles) {
    hoverPuzzle(menu, control - kPuzzleRows);
  }
}

void highlightTick(MenuScreen& menu) {
  if (menu.form()[ui::main].visible) highlight(menu, kMainBands, menu.mainHoverRow);
  if (menu.form()[ui::startnew].visible) highlight(menu, kStartBands, menu.startHoverRow);
}

}  // namespace shell
