// The controls and timers of the menu screen as plain data, from the back to the front.
#pragma once

#include <array>
#include <span>

#include "platform/control.h"
#include "platform/timers.h"

namespace shell {

/// Name of the picture behind the menu.
inline constexpr const char* kMenuBackground = "menu";
inline constexpr const char* kLockImage = "lock";  // beside a mission that is still closed

namespace menu_control {

/// Rows of menuControls(). A name with [n] behind it is the first of an array of n rows. Names that
/// both screens use are kept apart by namespaces.
enum Id : int {
  // Main panel.
  main,
  mainplate,
  Frame22,
  Label39,  // [2]
  Picture1 = Label39 + 2,
  mainnew,
  Picture2,
  mainload,
  Picture5,
  mainhelp,
  ivir,
  maincredits,
  Picture3,
  mainquit,
  // Ways to play.
  startnew,
  startplate,
  Frame7,
  Picture6,
  stcampaign,
  Picture9,
  stpuzzle,
  Picture7,
  stopen,
  Label4,
  Picture8,
  stback,
  // List of missions.
  campaign,
  campaignplate,
  Frame6,
  campaigntitle,
  Command1,
  Frame9,
  Label6,  // [10]
  mission = Label6 + 10,
  difflbl,
  mapsizelbl,
  fertilelbl,
  statuslbl,
  campaignback,
  // Briefing.
  Framecpgn,
  briefingplate,
  Frame1,
  cpgninfo,
  Frame5,
  goalinfo,
  Command11,
  Command14,
  // List of puzzles.
  Frame15,
  puzzleplate,
  Frame16,
  Label19,
  Label21,
  Frame17,
  Label22,
  Label20,                   // [10]
  Picture10 = Label20 + 10,  // ten marks, Picture10 to Picture19
  Picture20 = Picture10 + 10,
  Picture21,
  Command23,
  // Open play.
  openplay,
  openplate,
  Frame3,
  Check3,
  Check1,
  Check2,
  Frame4,
  Check6,
  Check5,
  Check4,
  Frame12,
  Check7,
  Check8,
  Check9,
  Frame2,
  openplaydiff,
  openback,
  opengo,
  // Credits.
  Frame10,
  creditsplate,
  Frame11,
  creditstitle,
  designby,
  designname,
  musicby,
  musicname,
  musicaddress,
  graphicsby,
  graphicsname,
  homepage,
  homepageaddress,
  contact,
  contactaddress,
  Command18,
  // Notices.
  command7,
  lblloading,
  loadingtext,
  kCount,
};

}  // namespace menu_control

std::span<const platform::ControlDesign> menuControls();

namespace menu_timer {

enum Id : int {
  Timer1,  // ends the notice of an unopened mission
  Timer2,  // opens a new game
  Timer3,  // opens a campaign mission
  Timer4,  // opens the load panel
  Timer5,  // pointer highlight
};

inline constexpr std::array<platform::TimerDesign, 5> kTimers{{
    {"Timer1", 1250, false},
    {"Timer2", 500, false},
    {"Timer3", 500, false},
    {"Timer4", 500, false},
    {"Timer5", 30, true},
}};

}  // namespace menu_timer

}  // namespace shell
