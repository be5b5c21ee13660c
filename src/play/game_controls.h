// The controls of the game screen as plain data: one row each, from the back to the front.
#pragma once

#include <array>
#include <span>

#include "core/buildings.h"
#include "platform/control.h"

namespace play {

namespace game_control {

inline constexpr int kViewKeys = core::kServices + 1;  // the normal view, and one for each service
inline constexpr int kToolKeys = core::kBuildings.size() + 1;  // buildings and demolishing
inline constexpr int kReportRows = 9 + core::kServices;  // of the book, shown in the status report

/// Rows of gameControls(), each with its purpose. A name with [n] is the first of an array of n rows.
enum Id : int {
  picScroll,  // the map
  Line1,      // [8] lines of the cursor
  // Top bar.
  Frame14 = Line1 + 8,  // top bar
  Image3,               // its picture
  pop1,                 // population
  para1,                // gold
  FoodS,                // food
  tarih,                // date
  // Right-hand panel.
  Frame6,                         // side panel
  leftpost,                       // left border
  rightpost,                      // right border
  Frame16,                        // plate at the top
  Image10,                        // its picture
  Frame17,                        // view plate
  Image11,                        // its picture
  Label8,                         // "VIEW MODE"
  currentview,                    // name of the view
  seer,                           // [kViewKeys] view keys
  Frame15 = seer + kViewKeys,     // plate of STATUS
  Image5,                         // its picture
  Statusreport,                   // status key
  Frame2,                         // plate of PREFERENCES
  Image4,                         // its picture
  Command5,                       // preferences key
  Frame1,                         // palette
  Image6,                         // its picture
  Label4,                         // name of the mode
  buildcurrent,                   // tool in hand
  buildprice,                     // its price
  namlbl,                         // inspected building
  inform,                         // info key
  building,                       // build key
  Command1,                       // [kToolKeys] tool keys
  Frame9 = Command1 + kToolKeys,  // plate of GAME MENU
  Image9,                         // its picture
  gmmenu,                         // game menu key
  Frame7,                         // plate of GOALS
  Image7,                         // its picture
  Label3,                         // goals key
  // Info panel, over the palette.
  tileinfo,   // info panel
  Image2,     // its picture
  buildsize,  // reach
  poplbl,     // housing
  mailbl,     // upkeep
  marlbl,     // market access
  chulbl,     // church access
  schlbl,     // school access
  doclbl,     // doctor access
  tavlbl,     // tavern access
  totlbl,     // rating of the site
  // Legend of the access views.
  Frame13,      // legend
  legendtitle,  // title
  legendblue,   // text of blue
  legendred,    // text of red
  legendgrey,   // text of grey
  swatchblue,   // blue swatch
  swatchred,    // red swatch
  swatchgrey,   // grey swatch
  // Goal strip of the puzzles.
  Frame21,  // goal strip
  Label18,  // its text
  // Banner of the demonstration.
  Frame20,  // demonstration banner
  Image8,   // its picture
  Label16,  // first line
  Label17,  // second line
  // Status report.
  statusframe,                    // status report
  Text3,                          // outer plate
  Command10,                      // inner plate
  Frame4,                         // table
  mon1lbl,                        // heading of column 1
  mon2lbl,                        // column 2
  mon3lbl,                        // column 3
  mon4lbl,                        // column 4
  stlbl1,                         // [kReportRows] numbers of column 1
  stlbl2 = stlbl1 + kReportRows,  // [kReportRows] column 2
  stlbl3 = stlbl2 + kReportRows,  // [kReportRows] column 3
  stlbl4 = stlbl3 + kReportRows,  // [kReportRows] column 4
  stpop = stlbl4 + kReportRows,   // population
  stnetim,                        // net immigration
  sttax,                          // taxes
  stmaint,                        // upkeep
  stconst,                        // construction
  stnetin,                        // net income
  stfoodpro,                      // food production
  stfoodcon,                      // food consumption
  ststored,                       // stored food
  marrat,                         // market rating
  schrat,                         // school rating
  churat,                         // church rating
  docrat,                         // doctor rating
  tavrat,                         // tavern rating
  taxLabel,                       // "Tax rate (%)"
  taxrateminus,                   // lower tax
  showtaxrate,                    // tax rate
  taxrateplus,                    // raise tax
  statusclose,                    // close
  // Preferences.
  showpref,          // preferences
  prefplate1,        // outer plate
  prefplate2,        // inner plate
  Frame5,            // rows
  Label19,           // "Music"
  Combo1,            // music list
  scrollspeed,       // "Sound effects"
  scrollspeedminus,  // sound switch
  Label7,            // "Game speed"
  gamespeedminus,    // slower
  gamespeed,         // speed
  gamespeedplus,     // faster
  Label13,           // "Farm animation"
  zoomminus,         // farm animation switch
  Label12,           // "Sprites"
  spriteonoff,       // walkers switch
  Command7,          // close
  // Game menu.
  gamemenu,   // game menu
  menuplate,  // plate
  Frame10,    // buttons
  savegame,   // open save panel
  ldgame,     // open load panel
  Command19,  // quit game
  Command17,  // close
  // Save panel.
  framesave,    // save panel
  saveplate,    // plate
  savehint1,    // hint above the name
  txtsavename,  // typed name
  savehint2,    // hint above the list
  File2,        // saved games
  cmdsave,      // save
  Cancelsave,   // cancel
  // Load panel.
  frameload,      // load panel
  loadplate,      // plate
  loadhintplate,  // plate of the hint
  loadhint,       // hint
  File1,          // saved games
  cmdload,        // load
  cmdcancel,      // cancel
  Frametoload,    // loading notice
  loadinglabel,   // its text
  // Notices.
  bilgi,       // notice
  Frame3,      // its sheet
  bilgilabel,  // its text
  Command21,   // OK
  mscompfrm,   // outcome of a mission
  Command4,    // its text
  haber,       // banner of messages
  kCount,
};

// The labels of each service, in the order of core::Service.
inline constexpr std::array<Id, core::kServices> kAccessLabels{marlbl, schlbl, tavlbl, chulbl,
                                                               doclbl};
inline constexpr std::array<Id, core::kServices> kRatingLabels{marrat, schrat, tavrat, churat,
                                                               docrat};

}  // namespace game_control

std::span<const platform::ControlDesign> gameControls();

}  // namespace play
