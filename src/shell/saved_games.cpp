#include "shell/saved_games.h"

#include <algorithm>

#include "core/missions.h"
#include "core/new_game.h"
#include "core/number_text.h"
#include "map/geometry.h"
#include "map/ground.h"
#include "map/road_shapes.h"
#include "map/views.h"
#include "platform/files.h"
#include "platform/natural_order.h"
#include "play/palette.h"
#include "play/panels.h"
#include "play/preferences.h"
#include "scenario/puzzles.h"
#include "shell/program.h"

namespace shell {

namespace {

namespace ui = play::ui;
namespace timer = play::timer;
using play::Scene;

constexpr int kTopBar = ui::Frame14;
constexpr int kSidePanel = ui::Frame6;
constexpr int kPreferencesKey = ui::Frame2;
constexpr int kLegend = ui::Frame13;
constexpr int kGoalStrip = ui::Frame21;
constexpr int kLoadingNotice = ui::Frametoload;
constexpr int kLoadList = ui::File1;
constexpr int kSaveList = ui::File2;

constexpr const char* kEnding = ".sav";
constexpr const char* kLoadError = "Error loading saved game";
constexpr const char* kSaveError = "Save Error";

/// Deliberate: the save and load panels are centred in 700 x 700, not in the screen.
void showFilePanel(Scene& scene, int panel) {
  scene.form.centre(panel, 700, 700);
  scene.form.show(panel);
}

/// The panel stays, and the name can be corrected at once.
void refuseToSave(Scene& scene, std::string_view why) {
  scene.desk.showBox(kSaveError, why);
  scene.desk.focusOn(ui::txtsavename, platform::Desk::Caret::atEnd);
}

const std::string* selectedName(const platform::Control& control) {
  const platform::ListContent& list = *control.list;
  if (list.selected < 0 || list.selected >= static_cast<int>(list.items.size())) return nullptr;
  return &list.items[list.selected];
}

}  // namespace

void refreshFileList(GameScreen& screen, int list) {
  platform::ListContent& content = *screen.form()[list].list;
  content.items = platform::listFiles(screen.folder(), kEnding);
  const auto name = [](std::string_view file) {
    return file.substr(0, file.size() - std::string_view(kEnding).size());
  };
  std::sort(content.items.begin(), content.items.end(),
            [&name](const std::string& a, const std::string& b) {
              return platform::comesBefore(name(a), name(b));
            });
  content.selected = -1;
  content.top = 0;
}

void hidePanelsForLoad(Scene& scene) {
  constexpr int kPanels[] = {kTopBar, ui::frameload, kSidePanel, ui::tileinfo, kPreferencesKey};
  for (const int panel : kPanels) scene.form.hide(panel);
}

void writeDate(Scene& scene) {
  platform::Text& text = scene.text(ui::tarih);
  core::setCaption(text, "Date: ", scene.game.month, " / ");
  text.append(core::NumberText(scene.values.gYear));
}

void startAutoPlay(GameScreen& screen) {
  screen.scene().game.musicAuto = 0;
  screen.scene().game.musicTrack = 0;
  chooseMusic(screen, sound::MusicChoice::autoPlay);
}

void drawFirstCoat(GameScreen& screen) {
  Scene& scene = screen.scene();
  scene.form[ui::picScroll].place = map::kRestingPlace;
  map::DrawTiles(scene.stage);
}

void clickSaveGame(GameScreen& screen) {
  Scene& scene = screen.scene();
  scene.cue(sound::kClick);
  scene.form.hide(ui::gamemenu);
  refreshFileList(screen, kSaveList);
  showFilePanel(scene, ui::framesave);
  scene.desk.focusOn(ui::txtsavename, platform::Desk::Caret::overAll);
}

void clickLoadGame(GameScreen& screen) {
  Scene& scene = screen.scene();
  scene.cue(sound::kClick);
  scene.form.hide(ui::gamemenu);
  refreshFileList(screen, kLoadList);
  showFilePanel(scene, ui::frameload);
}

void clickCancelSave(GameScreen& screen) {
  screen.scene().cue(sound::kClick);
  screen.form().hide(ui::framesave);
  play::showGameMenu(screen.scene());
}

void clickCancelLoad(GameScreen& screen) {
  Scene& scene = screen.scene();
  scene.cue(sound::kClick);
  scene.form.hide(ui::frameload);
  if (scene.values.gLoadPending == 1) {
    scene.timers.enable(timer::Timer10);
  } else {
    play::showGameMenu(scene);
  }
}

void clickSave(GameScreen& screen) {
  Scene& scene = screen.scene();
  scene.cue(sound::kClick);
  const platform::Text& typed = scene.text(ui::txtsavename);
  std::string name;
  if (!typed.empty()) {
    name = std::string(typed.view()) + kEnding;
  } else if (const std::string* old = selectedName(scene.form[kSaveList])) {
    name = *old;
  } else {
    return refuseToSave(scene, "Choose from the list or enter a new one!");
  }
  std::string error;
  if (!store::saveGame(screen.folder() + "/" + name, scene.game, scene.values, error)) {
    return refuseToSave(scene, error);
  }
  scene.form.hide(ui::framesave);
  play::say(scene, "Game saved");
}

void clickLoad(GameScreen& screen) {
  Scene& scene = screen.scene();
  scene.cue(sound::kClick);
  const std::string* name = selectedName(scene.form[kLoadList]);
  if (name == nullptr) {
    scene.desk.showBox(kLoadError, "Please select a game for loading");
    return;
  }
  // The file is read and checked whole before anything on the screen changes: one that is no sound game
  // leaves the running one as it was, and a load that waits already continues.
  std::string error;
  auto record = store::readGame(screen.folder() + "/" + *name, error);
  if (record == nullptr || !screen.readBackdrop(record->values.gMission, error)) {
    scene.desk.showBox(kLoadError, error);
    return;
  }
  screen.waitingRecord() = std::move(record);
  if (scene.form[kGoalStrip].visible) {
    scene.form.hide(kGoalStrip);
    scene.timers.disable(timer::Timer14);
  }
  scene.stage.canvas.blank();
  if (scene.values.gLoadPending == 1) startAutoPlay(screen);
  scene.timers.enable(timer::Timer3);
  hidePanelsForLoad(scene);
  scene.form.centre(kLoadingNotice);
  scene.form.show(kLoadingNotice);
  play::hideCursor(scene);
  scene.timers.disable(timer::Timer5);
  scene.timers.disable(timer::Timer6);
  scene.form.moveTo(ui::picScroll, map::kRestingPlace.left, map::kRestingPlace.top);
  scene.game.scrollX = scene.game.scrollY = 0;
}

void rebuildLoadedCity(GameScreen& screen) {
  Scene& scene = screen.scene();
  core::GameState& game = scene.game;
  game.reserved[1] = 0;
  game.scratchCount = 0;
  game.cursorFootprint = 1;
  game.demolishFlag = 0;
  scene.timers.setEnabled(timer::Timer7, game.walkersOn == 1);
  scene.timers.disable(timer::Timer6);
  map::readmap(game, scene.values, screen.random());
  // A load is always seen in the normal view, which has no legend.
  game.overlayView = 0;
  scene.form.hide(kLegend);
  drawFirstCoat(screen);
  map::shapeAllRoads(game);
  map::applyOverlayView(scene.stage);
  scene.text(ui::currentview).assign(map::viewName(0));
  core::setCaption(scene.text(ui::para1), "Gold:", game.gold);
  writeDate(scene);
  play::say(scene, "Game loaded");
  scene.timers.enable(timer::Timer5);
  scene.timers.disable(timer::Timer3);
  scene.form.show(kSidePanel);
  scene.form.show(ui::tileinfo);
  scene.form.show(kPreferencesKey);
  scene.form.hide(kLoadingNotice);
  scene.form.show(kTopBar);
  core::clearWalkers(game);
  play::resetPaletteAfterLoad(scene);
  play::writeSpeed(scene);
  play::showUnlockedTools(scene);
}

void finishLoad(GameScreen& screen) {
  Scene& scene = screen.scene();
  core::GameState& game = scene.game;
  scene.timers.disable(timer::Timer3);
  if (screen.waitingRecord() == nullptr) return;
  play::hideCursor(scene);
  store::applyRecord(*screen.waitingRecord(), game, scene.values);
  screen.waitingRecord().reset();
  scene.stage.canvas.clear();
  rebuildLoadedCity(screen);
  scene.values.gLoadPending = 0;
  scene.timers.enable(timer::Timer2);
  if (game.walkersOn == 1) {
    scene.timers.enable(timer::Timer6);
    scene.timers.enable(timer::Timer7);
  }
  if (core::isPuzzle(scene.values.gMission)) {
    scene.timers.enable(timer::Timer14);
    scenario::writePuzzleGoal(scene);
  }
}

}  // namespace shell
