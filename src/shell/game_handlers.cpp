// Which handler answers which control and which timer of the game screen.
#include <array>

#include "map/walkers.h"
#include "play/cursor.h"
#include "play/palette.h"
#include "play/panels.h"
#include "play/preferences.h"
#include "play/press.h"
#include "play/status_report.h"
#include "scenario/demonstration.h"
#include "scenario/puzzles.h"
#include "shell/game_screen.h"
#include "shell/game_tick.h"
#include "shell/leaving.h"
#include "shell/program.h"
#include "shell/saved_games.h"

namespace shell {

namespace {

namespace ui = play::ui;
namespace timer = play::timer;

constexpr int kMap = ui::picScroll;
constexpr int kMusicList = ui::Combo1;
constexpr int kLoadList = ui::File1;
constexpr int kPreferences = ui::showpref;
constexpr int kNotice = ui::bilgi;

// --- handlers that are a line or two ---

void openGameMenu(GameScreen& s) {
  s.scene().cue(sound::kClick);
  play::showGameMenu(s.scene());
}
void closePreferences(GameScreen& s) {
  s.form().hide(kPreferences);
}
void closeGameMenu(GameScreen& s) {
  s.form().hide(ui::gamemenu);
}
void closeNotice(GameScreen& s) {
  s.form().hide(kNotice);
}

void walkTick(GameScreen& s) {
  map::stepWalkers(s.scene().stage);
}
void spawnTick(GameScreen& s) {
  core::GameState& game = *s.game();
  if (map::spawnWalkers(game, game, game, s.walkerRandom())) s.timers().enable(timer::Timer6);
}
void scriptTick(GameScreen& s) {
  if (scenario::demonstrationTick(s.scene())) endDemonstration(s);
}
void puzzleTick(GameScreen& s) {
  scenario::puzzleTick(s.scene(), s.program().progress());
}

void musicTick(GameScreen& s) {
  core::GameState& game = *s.game();
  const int track = sound::countMusicSecond(game);
  if (track != 0) {
    platform::Media& media = s.program().media();
    media.closeTheme();
    media.openTheme(track);
    // Opening a theme may take a while: what waits runs now. The screen may be closed by it.
    s.program().letWaitingHandlersRun();
    media.playTheme();
  }
  sound::closeMusicCycle(game);
}

/// Calls a routine of play/ on the screen's scene.
template <void (*handler)(play::Scene&)>
void onScene(GameScreen& s) {
  handler(s.scene());
}

// --- the tables ---

using Handler = void (*)(GameScreen&);
struct ClickRow {
  int control;
  Handler handler;
};

constexpr ClickRow kClicks[] = {
    {ui::Statusreport, onScene<play::openStatusReport>},
    {ui::statusclose, onScene<play::closeStatusReport>},
    {ui::taxrateminus, onScene<play::lowerTax>},
    {ui::taxrateplus, onScene<play::raiseTax>},
    {ui::Command5, onScene<play::openPreferences>},
    {ui::Command7, closePreferences},
    {ui::gamespeedminus, onScene<play::slowDown>},
    {ui::gamespeedplus, onScene<play::speedUp>},
    {ui::scrollspeedminus, onScene<play::toggleSound>},
    {ui::zoomminus, onScene<play::toggleFarmAnimation>},
    {ui::spriteonoff, onScene<play::toggleWalkers>},
    {ui::inform, onScene<play::enterInfoMode>},
    {ui::building, onScene<play::enterBuildMode>},
    {ui::gmmenu, openGameMenu},
    {ui::Command17, closeGameMenu},
    {ui::Command19, quitGame},
    {ui::Label3, onScene<play::showGoal>},
    {ui::Command21, closeNotice},
    {ui::savegame, clickSaveGame},
    {ui::ldgame, clickLoadGame},
    {ui::cmdsave, clickSave},
    {ui::Cancelsave, clickCancelSave},
    {ui::cmdload, clickLoad},
    {ui::cmdcancel, clickCancelLoad},
    {ui::Label16, endDemonstration},
    {ui::Label17, endDemonstration},
};

/// Handlers of arrays of controls; they take the place within the array.
struct ClickArray {
  int first;
  int count;
  void (*handler)(play::Scene&, int index);
};
constexpr ClickArray kClickArrays[] = {
    {ui::seer, ui::kViewKeys, play::chooseView},
    {ui::Command1, ui::kToolKeys, play::selectTool},
};

/// The two panels that have a name in hand: Enter and Escape press the keys of the one in front.
struct KeyRow {
  int panel;
  Handler enter;
  Handler escape;
};
constexpr KeyRow kKeys[] = {{ui::framesave, clickSave, clickCancelSave},
                            {ui::frameload, clickLoad, clickCancelLoad}};

// In the order of the timer table.
constexpr std::array<Handler, core::game_timer::kTimers.size()> kTicks{
    captionTick,                 // Timer1
    gameTick,                    // Timer2
    finishLoad,                  // Timer3
    onScene<play::bannerTick>,   // Timer4
    onScene<play::pointerTick>,  // Timer5
    walkTick,                    // Timer6
    spawnTick,                   // Timer7
    roadLossTick,                // Timer8
    leaveAfterVictory,           // Timer9
    leaveLoadPanel,              // Timer10
    leaveAfterDefeat,            // Timer11
    shakeTick,                   // Timer12
    scriptTick,                  // Timer13
    puzzleTick,                  // Timer14
    leaveAfterPuzzle,            // Timer15
    musicTick,                   // Timer100
};

}  // namespace

void chooseMusic(GameScreen& screen, sound::MusicChoice choice) {
  const int entry = static_cast<int>(choice);
  platform::Control& list = screen.form()[kMusicList];
  list.list->selected = entry;
  if (sound::chooseMusic(*screen.game(), choice)) {
    screen.timers().enable(timer::Timer100);
  } else {
    screen.program().media().closeTheme();
    screen.timers().disable(timer::Timer100);
  }
}

void GameScreen::tick(int id) {
  kTicks[id](*this);
}

void GameScreen::onMouseMove(int id, int x, int y) {
  if (id == kMap) play::moveOverMap(scene_, x, y);
}

void GameScreen::onMouseDown(int id, int x, int y) {
  // While a load is chosen or waits, the blank map takes no presses.
  if (id == kMap && !stage_.canvas.isBlank()) play::pressMap(scene_, x, y);
}

void GameScreen::onClick(int id) {
  for (const ClickRow& row : kClicks) {
    if (row.control == id) return row.handler(*this);
  }
  for (const ClickArray& row : kClickArrays) {
    if (id >= row.first && id < row.first + row.count) return row.handler(scene_, id - row.first);
  }
}

void GameScreen::onDoubleClick(int id) {
  if (id == kLoadList) clickLoad(*this);
}

void GameScreen::onKey(platform::Key key) {
  const KeyRow* front = nullptr;
  for (const KeyRow& row : kKeys) {
    if (!form().shown(row.panel)) continue;
    if (front == nullptr || form()[row.panel].rank > form()[front->panel].rank) front = &row;
  }
  if (front == nullptr) return;
  key == platform::Key::enter ? front->enter(*this) : front->escape(*this);
}

void GameScreen::onChoose(int id) {
  if (id != kMusicList) return;
  chooseMusic(*this, static_cast<sound::MusicChoice>(form()[id].list->selected));
}

}  // namespace shell
