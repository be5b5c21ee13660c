#include "shell/menu_controls.h"

#include "core/missions.h"
#include "play/control_rows.h"
#include "scenario/puzzles.h"

namespace shell {

namespace {

using namespace menu_control;
using namespace play::rows;

constexpr ControlDesign panel(const char* name, int width, int height) {
  return onPaper(hidden(bordered(frame(name, kNoParent, {kParked, 100, width, height}, kPanel))));
}
constexpr ControlDesign group(const char* name, int parent, Rect place, const char* caption) {
  ControlDesign design = bordered(bare(frame(name, parent, place, kPlate)));
  design.text = caption;
  design.heading = Heading::group;
  return design;
}
// The plain box inside a panel, around its contents: parchment covers it.
constexpr ControlDesign plate(const char* name, int parent, int width, int height) {
  return unbordered(bare(box(name, parent, {4, 4, width - 8, height - 8}, kPlate)));
}
constexpr ControlDesign checkBox(const char* name, int parent, Rect place, const char* text) {
  ControlDesign design = row(name, ControlKind::checkBox, parent, place);
  design.text = text;
  design.back = kPlate;
  return design;
}

constexpr std::array<ControlDesign, kCount> makeTable() {
  std::array<ControlDesign, kCount> t{};
  // A row of the two panels of buttons: a picture plate, and the label on it.
  const auto plateRow = [&t](int plateId, const char* plateName, int labelId, const char* labelName,
                             int parent, int left, int top, const char* text) {
    t[plateId] = image(plateName, parent, {left, top, 155, 33});
    ControlDesign d =
        label(labelName, parent, {left + 8, top + 5, 145, 25}, text, FontSize::pt11, Align::centre);
    t[labelId] = faced(Face::plainKey, d.place, on(kPlate, d));
  };

  t[main] = panel("main", 233, 313);
  t[mainplate] = plate("mainplate", main, 233, 313);
  t[Frame22] = frame("Frame22", main, {8, 8, 217, 73}, kPanel);
  t[Frame22].border = true;
  t[Label39] =
      label("Label39", Frame22, {8, 12, 201, 26}, "VELLMORAN", FontSize::pt14, Align::centre, 0);
  t[Label39 + 1] =
      label("Label39", Frame22, {8, 40, 201, 18}, "Royal Edition", FontSize::pt9, Align::centre, 1);
  plateRow(Picture1, "Picture1", mainnew, "mainnew", main, 40, 96, "NEW GAME");
  plateRow(Picture2, "Picture2", mainload, "mainload", main, 40, 136, "LOAD GAME");
  plateRow(Picture5, "Picture5", mainhelp, "mainhelp", main, 40, 176, "DEMO GAME");
  plateRow(ivir, "ivir", maincredits, "maincredits", main, 40, 216, "CREDITS");
  plateRow(Picture3, "Picture3", mainquit, "mainquit", main, 40, 256, "EXIT GAME");

  t[startnew] = panel("startnew", 233, 337);
  t[startplate] = plate("startplate", startnew, 233, 337);
  t[Frame7] = bare(frame("Frame7", startnew, {24, 24, 185, 289}, kPlate));
  plateRow(Picture6, "Picture6", stcampaign, "stcampaign", Frame7, 16, 8, "CAMPAIGN");
  plateRow(Picture9, "Picture9", stpuzzle, "stpuzzle", Frame7, 16, 48, "PUZZLE PLAY");
  plateRow(Picture7, "Picture7", stopen, "stopen", Frame7, 16, 88, "OPEN PLAY");
  t[Label4] = faced(Face::sheet, {16, 130, 155, 110},
                    label("Label4", Frame7, {24, 136, 137, 97}, "", FontSize::pt9));
  plateRow(Picture8, "Picture8", stback, "stback", Frame7, 16, 248, "BACK TO MAIN");

  t[campaign] = panel("campaign", 585, 441);
  t[campaignplate] = plate("campaignplate", campaign, 585, 441);
  t[Frame6] = frame("Frame6", campaign, {32, 16, 521, 32}, kPanel);
  t[Frame6].border = true;
  t[campaigntitle] = label("campaigntitle", Frame6, {8, 4, 505, 24}, "CAMPAIGN MISSIONS",
                           FontSize::pt14, Align::centre);
  t[Command1] = {.name = "Command1",
                 .kind = ControlKind::box,
                 .parent = campaign,
                 .place = {28, 60, 313, 337},
                 .back = kPanel,
                 .border = true};
  t[Frame9] = bare(frame("Frame9", campaign, {32, 64, 305, 329}, kPlate));
  for (int k = 0; k < core::kMissions; ++k) {
    t[Label6 + k] =
        label("Label6", Frame9, {32, 8 + 32 * k, 257, 25}, "", FontSize::pt11, Align::left, k);
    t[Label6 + k].image = kLockImage;
  }
  t[mission] = group("mission", campaign, {344, 64, 201, 129}, "MISSION DETAILS:");
  t[difflbl] = label("difflbl", mission, {8, 24, 187, 20}, "Difficulty: ");
  t[mapsizelbl] = label("mapsizelbl", mission, {8, 48, 187, 20}, "Map size: ");
  t[fertilelbl] = label("fertilelbl", mission, {8, 72, 187, 20}, "Land fertiliy: ");
  t[statuslbl] = label("statuslbl", mission, {8, 96, 187, 20}, "Status: ");
  t[campaignback] = button("campaignback", campaign, {376, 280, 153, 33}, "Cancel");

  t[Framecpgn] = panel("Framecpgn", 481, 417);
  t[briefingplate] = plate("briefingplate", Framecpgn, 481, 417);
  t[Frame1] = group("Frame1", Framecpgn, {24, 24, 433, 241}, "");
  t[cpgninfo] = label("cpgninfo", Frame1, {16, 28, 401, 201}, "");
  t[Frame5] = group("Frame5", Framecpgn, {24, 272, 433, 73}, "GOALS");
  t[goalinfo] = label("goalinfo", Frame5, {16, 24, 401, 41}, "");
  t[Command11] = button("Command11", Framecpgn, {136, 360, 97, 29}, "Cancel");
  t[Command14] = button("Command14", Framecpgn, {256, 360, 97, 29}, "Play");

  t[Frame15] = panel("Frame15", 521, 441);
  t[puzzleplate] = plate("puzzleplate", Frame15, 521, 441);
  t[Frame16] = bare(frame("Frame16", Frame15, {24, 24, 465, 385}, kPanel));
  t[Frame16].border = true;
  t[Label19] = label("Label19", Frame16, {8, 6, 449, 26}, "PUZZLE PLAY MISSIONS", FontSize::pt14,
                     Align::centre);
  t[Label21] = label("Label21", Frame16, {20, 36, 425, 38},
                     " It is strongly recommended that you complete the campaign before starting "
                     "puzzle missions");
  t[Frame17] = bare(frame("Frame17", Frame16, {24, 80, 425, 241}, kPlate));
  t[Frame17].border = true;
  t[Label22] = label("Label22", Frame17, {8, 16, 409, 20},
                     "(The missions are ranked according to their difficulty)", FontSize::pt9,
                     Align::centre);
  constexpr const char* kMarks[] = {"Picture10", "Picture11", "Picture12", "Picture13",
                                    "Picture14", "Picture15", "Picture16", "Picture17",
                                    "Picture18", "Picture19"};
  for (int k = 0; k < core::kPuzzles; ++k) {
    const int left = k < 5 ? 56 : 232;
    const int top = 56 + 32 * (k % 5);
    t[Label20 + k] =
        label("Label20", Frame17, {left, top, 145, 25}, "", FontSize::pt11, Align::centre, k);
    t[Picture10 + k] = {.name = kMarks[k],
                        .kind = ControlKind::image,
                        .parent = Frame17,
                        .place = {left + 24, top + 8, 12, 10}};
  }
  t[Picture20] = image("Picture20", Frame17, {8, 216, 12, 10});
  t[Picture20].visible = false;
  t[Picture21] = image("Picture21", Frame17, {24, 216, 7, 7});
  t[Picture21].visible = false;
  t[Command23] = button("Command23", Frame16, {200, 344, 89, 33}, "Cancel");

  t[openplay] = panel("openplay", 321, 329);
  t[openplate] = plate("openplate", openplay, 321, 329);
  t[Frame3] = group("Frame3", openplay, {32, 32, 121, 105}, "Map size:");
  t[Check3] = checkBox("Check3", Frame3, {16, 24, 97, 20}, "Small ");
  t[Check1] = checkBox("Check1", Frame3, {16, 48, 97, 20}, "Medium");
  t[Check2] = checkBox("Check2", Frame3, {16, 72, 97, 20}, "Large ");
  t[Frame4] = group("Frame4", openplay, {168, 32, 121, 105}, "Land fertility:");
  t[Check6] = checkBox("Check6", Frame4, {16, 24, 97, 20}, "Bad");
  t[Check5] = checkBox("Check5", Frame4, {16, 48, 97, 20}, "Normal");
  t[Check4] = checkBox("Check4", Frame4, {16, 72, 97, 20}, "Good");
  t[Frame12] = group("Frame12", openplay, {32, 144, 257, 57}, "Starting money:");
  t[Check7] = checkBox("Check7", Frame12, {16, 24, 72, 20}, "Low");
  t[Check8] = checkBox("Check8", Frame12, {96, 24, 84, 20}, "Normal");
  t[Check9] = checkBox("Check9", Frame12, {184, 24, 68, 20}, "High");
  t[Frame2] = bare(frame("Frame2", openplay, {24, 216, 273, 81}, kPlate));
  t[openplaydiff] = label("openplaydiff", Frame2, {56, 8, 209, 24}, "Overall difficulty:100%");
  t[openback] = button("openback", Frame2, {16, 48, 113, 33}, "Cancel ");
  t[opengo] = button("opengo", Frame2, {144, 48, 113, 33}, "Play ");

  t[Frame10] = panel("Frame10", 393, 369);
  t[creditsplate] = plate("creditsplate", Frame10, 393, 369);
  t[Frame11] = bare(frame("Frame11", Frame10, {24, 24, 345, 321}, kPlate));
  t[creditstitle] = label("creditstitle", Frame11, {16, 0, 305, 25}, "VELLMORAN CREDITS",
                          FontSize::pt14, Align::centre);
  t[designby] = label("designby", Frame11, {64, 32, 225, 25},
                      "Game design and programming by:", FontSize::pt9, Align::centre);
  t[designname] = label("designname", Frame11, {72, 56, 185, 25}, "the Vellmoran team",
                        FontSize::pt12, Align::centre);
  t[musicby] =
      label("musicby", Frame11, {136, 96, 65, 25}, "Music by:", FontSize::pt9, Align::centre);
  t[musicname] = label("musicname", Frame11, {32, 120, 265, 25}, "the Vellmoran team",
                       FontSize::pt12, Align::centre);
  t[musicaddress] = label("musicaddress", Frame11, {16, 144, 297, 17},
                          "played by the instruments of the village", FontSize::pt9, Align::centre);
  t[graphicsby] = label("graphicsby", Frame11, {128, 176, 89, 25}, "Graphics by:", FontSize::pt9,
                        Align::centre);
  t[graphicsname] = label("graphicsname", Frame11, {32, 200, 281, 25}, "the Vellmoran team",
                          FontSize::pt12, Align::centre);
  t[homepage] =
      label("homepage", Frame11, {0, 240, 73, 25}, "Homepage:", FontSize::pt9, Align::right);
  t[homepageaddress] = label("homepageaddress", Frame11, {80, 240, 257, 25},
                             "README.md and docs/ of Vellmoran " VELLMORAN_VERSION, FontSize::pt9);
  t[contact] =
      label("contact", Frame11, {16, 264, 57, 25}, "Contact:", FontSize::pt9, Align::right);
  t[contactaddress] =
      label("contactaddress", Frame11, {80, 264, 169, 25}, "the Vellmoran team", FontSize::pt9);
  t[Command18] = button("Command18", Frame11, {144, 296, 57, 25}, "Ok");

  t[command7] = label("command7", kNoParent, {248, 536, 321, 49},
                      "Complete the previous missions first", FontSize::pt11, Align::centre);
  t[command7].back = kPanel;
  t[command7].opaque = true;
  t[command7].border = true;
  t[command7].visible = false;
  // A panel like the others, so that it comes to the front when it is shown: after an earlier mission
  // was played again the main panel is still behind the briefing.
  t[lblloading] = panel("lblloading", 281, 73);
  t[lblloading].text = "Please wait while loading...";
  t[loadingtext] = label("loadingtext", lblloading, {8, 8, 265, 57}, t[lblloading].text,
                         FontSize::pt12, Align::centre);
  return t;
}

constexpr std::array<ControlDesign, kCount> kTable = makeTable();

static_assert(complete(kTable));

}  // namespace

std::span<const ControlDesign> menuControls() {
  return kTable;
}

}  // namespace shell
