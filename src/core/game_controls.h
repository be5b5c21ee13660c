// The controls of the game screen as plain data: one row each, from the back to the front.
#pragma once

#include <span>

#include "platform/control.h"

namespace core {

namespace game_control {

/// Rows of gameControls(). A name with [n] behind it is the first of an array of n rows.
enum Id : int {
  picScroll,
  Line1,  // [8]
  // Top bar.
  Frame14 = Line1 + 8,
  Image3,
  pop1,
  para1,
  FoodS,
  tarih,
  // Right-hand panel.
  Frame6,
  leftpost,
  rightpost,
  Frame16,
  Image10,
  Frame17,
  Image11,
  Label8,
  currentview,
  seer,  // [6]
  Frame15 = seer + 6,
  Image5,
  Statusreport,
  Frame2,
  Image4,
  Command5,
  Frame1,
  Image6,
  Label4,
  buildcurrent,
  buildprice,
  namlbl,
  inform,
  building,
  Command1,  // [9]
  Frame9 = Command1 + 9,
  Image9,
  gmmenu,
  Frame7,
  Image7,
  Label3,
  // Info panel, over the palette.
  tileinfo,
  Image2,
  buildsize,
  poplbl,
  mailbl,
  marlbl,
  chulbl,
  schlbl,
  doclbl,
  tavlbl,
  totlbl,
  // Legend of the access views.
  Frame13,
  legendtitle,
  legendblue,
  legendred,
  legendgrey,
  swatchblue,
  swatchred,
  swatchgrey,
  // Goal strip of the puzzles.
  Frame21,
  Label18,
  // Banner of the demonstration.
  Frame20,
  Image8,
  Label16,
  Label17,
  // Status report.
  statusframe,
  Text3,
  Command10,
  Frame4,
  mon1lbl,
  mon2lbl,
  mon3lbl,
  mon4lbl,
  stlbl1,                // [14]
  stlbl2 = stlbl1 + 14,  // [14]
  stlbl3 = stlbl2 + 14,  // [14]
  stlbl4 = stlbl3 + 14,  // [14]
  stpop = stlbl4 + 14,
  stnetim,
  sttax,
  stmaint,
  stconst,
  stnetin,
  stfoodpro,
  stfoodcon,
  ststored,
  marrat,
  schrat,
  churat,
  docrat,
  tavrat,
  taxLabel,
  taxrateminus,
  showtaxrate,
  taxrateplus,
  statusclose,
  // Preferences.
  showpref,
  prefplate1,
  prefplate2,
  Frame5,
  Label19,
  Combo1,
  scrollspeed,
  scrollspeedminus,
  Label7,
  gamespeedminus,
  gamespeed,
  gamespeedplus,
  Label13,
  zoomminus,
  Label12,
  spriteonoff,
  Command7,
  // Game menu.
  gamemenu,
  menuplate,
  Frame10,
  savegame,
  ldgame,
  Command19,
  Command17,
  // Save panel.
  framesave,
  saveplate,
  savehint1,
  txtsavename,
  savehint2,
  File2,
  cmdsave,
  Cancelsave,
  // Load panel.
  frameload,
  loadplate,
  loadhintplate,
  loadhint,
  File1,
  cmdload,
  cmdcancel,
  Frametoload,
  loadinglabel,
  // Notices.
  bilgi,
  Frame3,
  bilgilabel,
  Command21,
  mscompfrm,
  Command4,
  haber,
  kCount,
};

}  // namespace game_control

std::span<const platform::ControlDesign> gameControls();

}  // namespace core
