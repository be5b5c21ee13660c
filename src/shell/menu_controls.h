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

/// Rows of menuControls(), each with its purpose. A name with [n] behind it is the first of an array of n rows. Names that
/// both screens use are kept apart by namespaces.
enum Id : int {
  // Main panel.
  main,                    // main panel
  mainplate,               // plate
  Frame22,                 // title frame
  Label39,                 // [2] title
  Picture1 = Label39 + 2,  // plate of NEW GAME
  mainnew,                 // NEW GAME
  Picture2,                // plate of LOAD GAME
  mainload,                // LOAD GAME
  Picture5,                // plate of DEMO GAME
  mainhelp,                // DEMO GAME
  ivir,                    // plate of CREDITS
  maincredits,             // CREDITS
  Picture3,                // plate of EXIT GAME
  mainquit,                // EXIT GAME
  // Ways to play.
  startnew,    // start panel
  startplate,  // plate
  Frame7,      // rows
  Picture6,    // plate of CAMPAIGN
  stcampaign,  // CAMPAIGN
  Picture9,    // plate of PUZZLE PLAY
  stpuzzle,    // PUZZLE PLAY
  Picture7,    // plate of OPEN PLAY
  stopen,      // OPEN PLAY
  Label4,      // hint
  Picture8,    // plate of BACK
  stback,      // BACK TO MAIN
  // List of missions.
  campaign,               // list of missions
  campaignplate,          // plate
  Frame6,                 // title frame
  campaigntitle,          // title
  Command1,               // border of the rows
  Frame9,                 // ground of the rows
  Label6,                 // [10] missions
  mission = Label6 + 10,  // details
  difflbl,                // difficulty
  mapsizelbl,             // map size
  fertilelbl,             // fertility
  statuslbl,              // completed or not
  campaignback,           // cancel
  // Briefing.
  Framecpgn,      // briefing
  briefingplate,  // plate
  Frame1,         // number of the mission
  cpgninfo,       // the king's letter
  Frame5,         // "GOALS"
  goalinfo,       // goals
  Command11,      // cancel
  Command14,      // play
  // List of puzzles.
  Frame15,                     // list of puzzles
  puzzleplate,                 // plate
  Frame16,                     // inner frame
  Label19,                     // title
  Label21,                     // advice
  Frame17,                     // ground of the rows
  Label22,                     // remark on the order
  Label20,                     // [10] levels
  Picture10 = Label20 + 10,    // ten marks, Picture10 to Picture19
  Picture20 = Picture10 + 10,  // mark of a solved level
  Picture21,                   // mark of an open level
  Command23,                   // cancel
  // Open play.
  openplay,      // open play panel
  openplate,     // plate
  Frame3,        // "Map size:"
  Check3,        // small
  Check1,        // medium
  Check2,        // large
  Frame4,        // "Land fertility:"
  Check6,        // bad
  Check5,        // normal
  Check4,        // good
  Frame12,       // "Starting money:"
  Check7,        // low
  Check8,        // normal
  Check9,        // high
  Frame2,        // bottom row
  openplaydiff,  // difficulty
  openback,      // cancel
  opengo,        // play
  // Credits.
  Frame10,       // credits
  creditsplate,  // plate
  Frame11,       // sheet
  creditstitle,  // title
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
  Command18,  // close
  // Notices.
  command7,     // notice: mission closed
  lblloading,   // loading notice
  loadingtext,  // its text
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
