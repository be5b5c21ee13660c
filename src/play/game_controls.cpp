#include "play/game_controls.h"

#include <array>

#include "play/control_rows.h"

namespace play {

namespace {

using namespace game_control;
using namespace rows;

constexpr Color kFloating{192, 192, 255};
constexpr Color kRow{172, 170, 253};
constexpr Color kBanner{255, 252, 226};

constexpr ControlDesign panel(const char* name, Rect place, const char* caption) {
  ControlDesign design = onPaper(hidden(bordered(frame(name, kNoParent, place, kFloating))));
  design.text = caption;
  design.font = FontSize::pt14;
  design.heading = Heading::title;
  return design;
}
constexpr ControlDesign wholeImage(const char* name, int parent, int width, int height) {
  return image(name, parent, {0, 0, width, height});
}
constexpr ControlDesign centred(const char* name, int parent, Rect place, const char* text,
                                int index = kSingle) {
  return label(name, parent, place, text, FontSize::pt11, Align::centre, index);
}
// A label that acts as a button of the right-hand panel, and the key that shows it.
constexpr ControlDesign knob(const char* name, int parent, Rect place, Rect key, const char* text,
                             int index = kSingle) {
  return faced(Face::key, key, centred(name, parent, place, text, index));
}
// The key in a plate of its own, and those of the palette: two columns, as wide as the longest name.
constexpr Rect kWideKey{9, 4, 127, 26};
constexpr Rect leftKey(int top, int height) {
  return {2, top, 70, height};
}
constexpr Rect rightKey(int top, int height) {
  return {73, top, 70, height};
}
// A key of the palette; its place differs a little from tool to tool.
constexpr ControlDesign tool(int index, Rect place, Rect key, const char* text) {
  return knob("Command1", Frame1, place, key, text, index);
}
// A label with a background of its own, as in the rows of a table.
constexpr ControlDesign cell(const char* name, int parent, Rect place, const char* text,
                             FontSize font, Align align, int index = kSingle) {
  return onPaper(on(kRow, label(name, parent, place, text, font, align, index)));
}
constexpr ControlDesign line(int index) {
  return {.name = "Line1",
          .index = index,
          .kind = ControlKind::line,
          .parent = picScroll,
          .fore = platform::kGreen,
          .visible = false};
}

constexpr ControlDesign view(int n, const char* text) {
  // The keys fill the row, every second a pixel wider.
  const Rect key{2 + 23 * n + n / 2, 54, 23 + n % 2, 23};
  return knob("seer", Frame17, {24 * n, 56, 25, 25}, key, text, n);
}
constexpr ControlDesign month(const char* name, int column) {
  return cell(name, Frame4, {144 + 72 * column, 8, 73, 19}, "", FontSize::pt9, Align::centre);
}
constexpr ControlDesign value(const char* name, int column, int index) {
  return cell(name, Frame4, {144 + 72 * column, 32 + 24 * index, 73, 19}, "0", FontSize::pt9,
              Align::centre, index);
}
constexpr ControlDesign caption(const char* name, int index, const char* text) {
  return cell(name, Frame4, {16, 32 + 24 * index, 129, 19}, text, FontSize::pt9, Align::left);
}
constexpr ControlDesign info(const char* name, int top, const char* text) {
  return label(name, tileinfo, {16, top, 121, 17}, text, FontSize::pt9);
}
constexpr ControlDesign preference(const char* name, Rect place, const char* text) {
  return bare(cell(name, Frame5, place, text, FontSize::pt11, Align::left));
}

constexpr std::array<ControlDesign, kCount> makeTable() {
  std::array<ControlDesign, kCount> t{};
  t[picScroll] = {
      .name = "picScroll", .kind = ControlKind::picture, .place = {-592, -228, 1984, 1056}};
  for (int n = 0; n < 8; ++n) t[Line1 + n] = line(n);

  t[Frame14] = frame("Frame14", kNoParent, {0, 0, 623, 37}, kPanel);
  t[Image3] = wholeImage("Image3", Frame14, 623, 37);
  t[pop1] = label("pop1", Frame14, {16, 8, 150, 20}, "Population:0");
  t[para1] = label("para1", Frame14, {176, 8, 140, 20}, "Gold:");
  t[FoodS] = label("FoodS", Frame14, {328, 8, 130, 20}, "Food:0");
  t[tarih] = label("tarih", Frame14, {472, 8, 140, 20}, "Date: ");

  t[Frame6] = frame("Frame6", kNoParent, {624, -16, 177, 618}, kPanel);
  t[leftpost] = image("leftpost", Frame6, {0, 16, 8, 600});
  t[rightpost] = image("rightpost", Frame6, {169, 16, 8, 600});
  t[Frame16] = frame("Frame16", Frame6, {16, 32, 145, 55}, kPanel);
  t[Image10] = wholeImage("Image10", Frame16, 145, 55);
  t[Frame17] = frame("Frame17", Frame6, {16, 96, 145, 81}, kPanel);
  t[Image11] = wholeImage("Image11", Frame17, 145, 80);
  t[Label8] = label("Label8", Frame17, {8, 4, 129, 22}, "VIEW MODE", FontSize::pt12, Align::centre);
  t[currentview] = centred("currentview", Frame17, {8, 28, 129, 20}, "Normal view");
  t[seer] = view(0, "N");
  for (int k = 1; k <= core::kServices; ++k) {
    t[seer + k] = view(k, core::buildingOfService(k).viewKey);
  }
  t[Frame15] = frame("Frame15", Frame6, {16, 184, 145, 34}, kPanel);
  t[Image5] = wholeImage("Image5", Frame15, 145, 34);
  t[Statusreport] = knob("Statusreport", Frame15, {5, 5, 135, 23}, kWideKey, "STATUS");
  t[Frame2] = frame("Frame2", Frame6, {16, 224, 145, 34}, kPanel);
  t[Image4] = wholeImage("Image4", Frame2, 145, 34);
  t[Command5] = knob("Command5", Frame2, {5, 7, 135, 21}, kWideKey, "PREFERENCES");
  t[Frame1] = frame("Frame1", Frame6, {16, 264, 145, 258}, kPanel);
  t[Image6] = wholeImage("Image6", Frame1, 145, 258);
  t[Label4] =
      label("Label4", Frame1, {8, 32, 129, 25}, "BUILD MODE", FontSize::pt12, Align::centre);
  t[buildcurrent] = label("buildcurrent", Frame1, {16, 56, 113, 17}, "Current:Road    ",
                          FontSize::pt9, Align::centre);
  t[buildprice] =
      label("buildprice", Frame1, {16, 72, 113, 17}, "Price:5", FontSize::pt9, Align::centre);
  t[namlbl] = centred("namlbl", Frame1, {8, 64, 129, 25}, "");
  t[inform] = knob("inform", Frame1, {8, 4, 57, 19}, leftKey(2, 24), "INFO");
  t[building] = knob("building", Frame1, {80, 4, 57, 19}, rightKey(2, 24), "BUILD");
  t[Command1 + 0] = tool(0, {77, 103, 65, 21}, rightKey(101, 25), "Residence");
  t[Command1 + 1] = tool(1, {80, 134, 57, 21}, rightKey(133, 25), "Market");
  t[Command1 + 2] = tool(2, {80, 166, 57, 21}, rightKey(165, 25), "School");
  t[Command1 + 3] = tool(3, {80, 198, 57, 21}, rightKey(197, 25), "Tavern");
  t[Command1 + 4] = tool(4, {9, 166, 57, 21}, leftKey(165, 25), "Church");
  t[Command1 + 5] = tool(5, {9, 198, 57, 21}, leftKey(197, 25), "Doctor");
  t[Command1 + 6] = tool(6, {8, 229, 129, 21}, {2, 228, 141, 26}, "Demolish");
  t[Command1 + 7] = tool(7, {8, 102, 57, 21}, leftKey(101, 25), "Road");
  t[Command1 + 8] = tool(8, {8, 134, 57, 21}, leftKey(133, 25), "Farm");
  t[Frame9] = frame("Frame9", Frame6, {16, 528, 145, 34}, kPanel);
  t[Image9] = wholeImage("Image9", Frame9, 145, 34);
  t[gmmenu] = knob("gmmenu", Frame9, {5, 5, 135, 23}, kWideKey, "GAME MENU");
  t[Frame7] = frame("Frame7", Frame6, {16, 568, 145, 34}, kPanel);
  t[Image7] = wholeImage("Image7", Frame7, 145, 34);
  // The caption is in the middle of its key, and presses count where it lights, a little higher.
  t[Label3] = knob("Label3", Frame6, {21, 574, 135, 22}, moved(kWideKey, 16, 568), "GOALS");
  t[Label3].press = {21, 565, 135, 23};

  t[tileinfo] = hidden(frame("tileinfo", kNoParent, {kParked, 347, 141, 157}, kPanel));
  t[Image2] = wholeImage("Image2", tileinfo, 141, 157);
  t[buildsize] = info("buildsize", 4, "Effect area:");
  t[poplbl] = info("poplbl", 20, "Max. housing:");
  t[mailbl] = info("mailbl", 36, "Maintenance:");
  t[marlbl] = info("marlbl", 52, "Market access:");
  t[chulbl] = info("chulbl", 68, "Church access:");
  t[schlbl] = info("schlbl", 84, "School access:");
  t[doclbl] = info("doclbl", 100, "Doctor access:");
  t[tavlbl] = info("tavlbl", 116, "Tavern access:");
  t[totlbl] = info("totlbl", 132, "Total:");

  t[Frame13] =
      onPaper(hidden(bordered(frame("Frame13", kNoParent, {kParked, 520, 441, 76}, kFloating))));
  t[legendtitle] = label("legendtitle", Frame13, {8, 4, 425, 16}, "LEGEND:", FontSize::pt9);
  t[legendblue] =
      label("legendblue", Frame13, {40, 21, 393, 16},
            "Blue:Residences which have access to the selected building   ", FontSize::pt9);
  t[legendred] =
      label("legendred", Frame13, {40, 38, 393, 16},
            "Red:Residences which do not have access to the selected building   ", FontSize::pt9);
  t[legendgrey] = label("legendgrey", Frame13, {40, 55, 393, 16}, "Grey:Non residential buildings",
                        FontSize::pt9);
  t[swatchblue] = image("swatchblue", Frame13, {8, 22, 26, 14});
  t[swatchred] = image("swatchred", Frame13, {8, 39, 26, 14});
  t[swatchgrey] = image("swatchgrey", Frame13, {8, 56, 26, 14});

  t[Frame21] =
      onPaper(hidden(bordered(frame("Frame21", kNoParent, {kParked, 560, 409, 25}, kFloating))));
  t[Label18] = label("Label18", Frame21, {4, 2, 401, 21}, "", FontSize::pt11, Align::centre);

  t[Frame20] = frame("Frame20", kNoParent, {kParked, 0, 178, 37}, kPanel);
  t[Image8] = wholeImage("Image8", Frame20, 178, 37);
  t[Label16] =
      label("Label16", Frame20, {8, 4, 161, 17}, "CLICK HERE TO END", FontSize::pt9, Align::centre);
  t[Label17] = label("Label17", Frame20, {8, 16, 161, 17}, "THE DEMONSTRATION", FontSize::pt9,
                     Align::centre);

  t[statusframe] = panel("statusframe", {kParked, 85, 489, 473}, "STATUS REPORT");
  t[Text3] = unbordered(bare(box("Text3", statusframe, {8, 32, 473, 433}, kPlate)));
  t[Command10] = bare(box("Command10", statusframe, {16, 40, 457, 417}, kFloating));
  t[Frame4] = bare(frame("Frame4", statusframe, {24, 48, 441, 401}, kFloating));
  t[mon1lbl] = month("mon1lbl", 0);
  t[mon2lbl] = month("mon2lbl", 1);
  t[mon3lbl] = month("mon3lbl", 2);
  t[mon4lbl] = month("mon4lbl", 3);
  for (int n = 0; n < kReportRows; ++n) {
    t[stlbl1 + n] = value("stlbl1", 0, n);
    t[stlbl2 + n] = value("stlbl2", 1, n);
    t[stlbl3 + n] = value("stlbl3", 2, n);
    t[stlbl4 + n] = value("stlbl4", 3, n);
  }
  t[stpop] = caption("stpop", 0, " Population:");
  t[stnetim] = caption("stnetim", 1, " Net immigration:");
  t[sttax] = caption("sttax", 2, " Taxes collected");
  t[stmaint] = caption("stmaint", 3, " Maintenance cost  ");
  t[stconst] = caption("stconst", 4, " Construction cost");
  t[stnetin] = caption("stnetin", 5, " Net income");
  t[stfoodpro] = caption("stfoodpro", 6, " Food production:");
  t[stfoodcon] = caption("stfoodcon", 7, " Food consumption:");
  t[ststored] = caption("ststored", 8, " Stored food:");
  t[marrat] = caption("marrat", 9, " Market rating:");
  t[schrat] = caption("schrat", 10, " Education rating:");
  t[churat] = caption("churat", 11, " Religion rating:");
  t[docrat] = caption("docrat", 12, " Health rating:");
  t[tavrat] = caption("tavrat", 13, " Recreation rating:");
  t[taxLabel] =
      cell("taxLabel", Frame4, {128, 376, 105, 20}, " Tax rate (%)", FontSize::pt9, Align::left);
  t[taxrateminus] = button("taxrateminus", Frame4, {232, 376, 20, 20}, "<", FontSize::pt9);
  t[showtaxrate] =
      cell("showtaxrate", Frame4, {252, 376, 21, 20}, "15", FontSize::pt9, Align::centre);
  t[taxrateplus] = button("taxrateplus", Frame4, {272, 376, 20, 20}, ">", FontSize::pt9);
  t[statusclose] = button("statusclose", statusframe, {464, 0, 25, 27}, "X");

  t[showpref] = panel("showpref", {kParked, 200, 265, 241}, "PREFERENCES");
  t[prefplate1] = unbordered(bare(box("prefplate1", showpref, {8, 32, 249, 201}, kPlate)));
  t[prefplate2] = bare(box("prefplate2", showpref, {16, 40, 233, 185}, kFloating));
  t[Frame5] = bare(frame("Frame5", showpref, {24, 48, 217, 169}, kRow));
  t[Label19] = preference("Label19", {0, 8, 113, 25}, " Music");
  t[Combo1] = {.name = "Combo1",
               .kind = ControlKind::dropDown,
               .parent = Frame5,
               .place = {112, 8, 97, 27},
               .font = FontSize::pt9,
               .back = platform::kWhite,
               .opaque = true,
               .border = true};
  t[scrollspeed] = preference("scrollspeed", {0, 40, 137, 25}, " Sound effects");
  t[scrollspeedminus] = button("scrollspeedminus", Frame5, {136, 40, 48, 24}, "On");
  t[Label7] = preference("Label7", {0, 72, 105, 25}, " Game speed");
  t[gamespeedminus] = button("gamespeedminus", Frame5, {104, 72, 24, 24}, "<");
  t[gamespeed] =
      bare(cell("gamespeed", Frame5, {128, 72, 65, 25}, "Normal", FontSize::pt11, Align::centre));
  t[gamespeedplus] = button("gamespeedplus", Frame5, {192, 72, 24, 24}, ">");
  t[Label13] = preference("Label13", {0, 104, 137, 25}, " Farm animation");
  t[zoomminus] = button("zoomminus", Frame5, {136, 104, 48, 24}, "On");
  t[Label12] = preference("Label12", {0, 136, 137, 25}, " Sprites");
  t[spriteonoff] = button("spriteonoff", Frame5, {136, 136, 49, 25}, "On");
  t[Command7] = button("Command7", showpref, {245, 0, 20, 21}, "X");

  t[gamemenu] = panel("gamemenu", {kParked, 210, 217, 185}, "GAME MENU");
  t[menuplate] = bare(box("menuplate", gamemenu, {16, 40, 185, 136}, kPlate));
  t[Frame10] = bare(frame("Frame10", gamemenu, {24, 44, 169, 128}, kRow));
  t[savegame] = button("savegame", Frame10, {8, 8, 152, 32}, "SAVE GAME");
  t[ldgame] = button("ldgame", Frame10, {8, 48, 152, 32}, "LOAD GAME");
  t[Command19] = button("Command19", Frame10, {8, 88, 152, 32}, "QUIT GAME");
  t[Command17] = button("Command17", gamemenu, {197, 0, 20, 21}, "X");

  t[framesave] = panel("framesave", {kParked, 165, 241, 369}, "SAVE GAME");
  t[saveplate] = bare(box("saveplate", framesave, {16, 40, 209, 313}, kPlate));
  t[savehint1] = label("savehint1", framesave, {32, 48, 185, 20}, "Enter a new game name:");
  t[txtsavename] = {.name = "txtsavename",
                    .kind = ControlKind::textBox,
                    .parent = framesave,
                    .place = {32, 72, 137, 27},
                    .font = FontSize::pt11,
                    .back = platform::kWhite,
                    .opaque = true,
                    .border = true};
  t[savehint2] = label("savehint2", framesave, {32, 104, 185, 20}, "Or select an old one:");
  t[File2] = {.name = "File2",
              .kind = ControlKind::fileList,
              .parent = framesave,
              .place = {32, 128, 177, 158},
              .font = FontSize::pt9,
              .back = platform::kWhite,
              .opaque = true,
              .border = true};
  t[cmdsave] = button("cmdsave", framesave, {32, 304, 81, 33}, "Save");
  t[Cancelsave] = button("Cancelsave", framesave, {128, 304, 81, 33}, "Cancel");

  t[frameload] = panel("frameload", {kParked, 177, 241, 345}, "LOAD GAME");
  t[loadplate] = bare(box("loadplate", frameload, {16, 40, 209, 289}, kPlate));
  t[loadhintplate] =
      unbordered(bare(box("loadhintplate", frameload, {22, 46, 197, 24}, kFloating)));
  t[loadhint] = label("loadhint", frameload, {24, 48, 193, 20}, "Select a game from the list",
                      FontSize::pt11, Align::centre);
  t[File1] = {.name = "File1",
              .kind = ControlKind::fileList,
              .parent = frameload,
              .place = {32, 88, 177, 177},
              .font = FontSize::pt9,
              .back = platform::kWhite,
              .opaque = true,
              .border = true};
  t[cmdload] = button("cmdload", frameload, {32, 280, 81, 33}, " Load ");
  t[cmdcancel] = button("cmdcancel", frameload, {128, 280, 81, 33}, "Cancel");

  t[Frametoload] = panel("Frametoload", {kParked, 263, 249, 73}, "GAME MENU");
  t[loadinglabel] = label("loadinglabel", Frametoload, {24, 36, 201, 24}, "Loading game..",
                          FontSize::pt11, Align::centre);

  t[bilgi] = panel("bilgi", {kParked, 200, 297, 153}, "GAME MENU");
  t[Frame3] = frame("Frame3", bilgi, {24, 24, 249, 81}, kRow);
  t[Frame3].opaque = false;  // the sheet inside keeps clear of the title and the button
  t[bilgilabel] =
      faced(Face::sheet, {0, 8, 249, 66}, label("bilgilabel", Frame3, {9, 12, 231, 58}, ""));
  t[Command21] = button("Command21", bilgi, {112, 104, 81, 25}, "OK");

  t[mscompfrm] = hidden(frame("mscompfrm", kNoParent, {kParked, 200, 257, 121}, kFloating));
  t[Command4] = button("Command4", mscompfrm, {0, 0, 257, 121}, "", FontSize::pt14);

  t[haber] =
      hidden(label("haber", kNoParent, {168, 48, 329, 33}, "", FontSize::pt11, Align::centre));
  t[haber].back = kBanner;
  t[haber].opaque = true;
  t[haber].border = true;
  return t;
}

constexpr std::array<ControlDesign, kCount> kTable = makeTable();

static_assert(complete(kTable));

}  // namespace

std::span<const ControlDesign> gameControls() {
  return kTable;
}

}  // namespace play
