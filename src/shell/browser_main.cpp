// The game in a browser. The page owns the loop: it starts the program, passes on what the player does,
// and calls `step` when the program wants to run again. What it hands over before is in handover.cpp.
#include <memory>
#include <string>

#include "platform/browser/browser_clipboard.h"
#include "platform/browser/browser_clock.h"
#include "platform/browser/browser_display.h"
#include "platform/browser/browser_media.h"
#include "platform/browser/handover.h"
#include "platform/browser/memory_files.h"
#include "shell/menu_controls.h"
#include "shell/program.h"
#include "shell/unsaved_city.h"
#include "store/record.h"

using platform::Handed;

namespace {

struct Game {
  explicit Game(int scale) : assets(scale) {}

  platform::BrowserClock clock;
  platform::BrowserDisplay display;
  platform::BrowserMedia media;
  platform::BrowserClipboard clipboard;
  shell::Assets assets;
  platform::Random random{&clock, clock.ticks()};
  platform::Random walkerRandom{&clock, clock.ticks()};
  shell::Services services{
      clock, random,    walkerRandom, media, display, assets, platform::kBrowserFolder,
      {},    &clipboard};
  std::unique_ptr<shell::Program> program;
  bool picturesCame = false;  // those of the game screen
};

std::unique_ptr<Game> game;

/// What the page reads after a call that returned its address.
std::string answer;

/// The desk at the present moment.
platform::Desk& desk() {
  game->program->desk().setNow(game->clock.milliseconds());
  return game->program->desk();
}

/// Whether a game is about to open whose pictures are still on their way.
bool waitsForPictures() {
  shell::Screen* const screen = game->program->screen();
  return !game->picturesCame && screen != nullptr && screen->game() == nullptr &&
         screen->form().shown(shell::menu_control::lblloading);
}

}  // namespace

/// Opens the menu, at first and after an EXIT GAME, to be drawn at a scale of 1 or 2. Returns 0 where
/// that failed; the page has been given a message then.
VELLMORAN_EXPORT("start") int start(int scale) {
  if (game == nullptr) {
    game = std::make_unique<Game>(scale);
    std::string error;
    if (!game->assets.open("data", error)) {
      game->display.message("Error", error.c_str());
      game.reset();
      return 0;
    }
  }
  game->program = std::make_unique<shell::Program>(game->services);
  game->program->start();
  return game->program->ended() ? 0 : 1;
}

/// Runs what is due and shows what changed. Returns in how many milliseconds the program wants to run
/// again, -1 for not before the player does something, -2 once it has ended.
VELLMORAN_EXPORT("step") double step() {
  shell::Program& program = *game->program;
  const bool waits = waitsForPictures();
  if (!waits) program.runTimers();
  if (program.ended()) return -2;
  const platform::DamageList& changed = program.paint();
  if (!changed.empty()) game->display.present(program.framebuffer(), changed.rects());
  const std::int64_t due = waits ? -1 : program.nextDue();
  const std::int64_t now = game->clock.milliseconds();
  return due < 0 ? -1 : due > now ? static_cast<double>(due - now) : 0;
}

/// Unpacks a little more of the game's pictures, once the page has handed them over. Returns whether more
/// is left.
VELLMORAN_EXPORT("readAhead") int readAhead() {
  game->picturesCame = true;
  return game->program->readAhead() ? 1 : 0;
}

/// The whole picture is to be shown again with the next step.
VELLMORAN_EXPORT("redraw") void redraw() {
  game->program->painter().forget();
}

VELLMORAN_EXPORT("pointer") void pointer(int x, int y) {
  desk().pointerMoved({x, y});
  game->program->settle();
}

VELLMORAN_EXPORT("press") void press(int x, int y, int shift, int control) {
  desk().buttonDown({x, y}, {shift != 0, control != 0});
  game->program->settle();
}

VELLMORAN_EXPORT("release") void release(int x, int y) {
  desk().buttonUp({x, y});
  game->program->settle();
}

/// Turns of the wheel, away from the player counted positive.
VELLMORAN_EXPORT("wheel") void wheel(int steps) {
  desk().wheel(steps);
  game->program->settle();
}

VELLMORAN_EXPORT("text") void text(char* bytes, int size) {
  desk().type(Handed(bytes, size).view());
  game->program->settle();
}

/// A key by its place in platform::Key.
VELLMORAN_EXPORT("key") void key(int number, int shift, int control) {
  desk().key(static_cast<platform::Key>(number), {shift != 0, control != 0});
  game->program->settle();
}

/// Whether a text box is typed into, so that the page shows a keyboard where there is only a screen.
VELLMORAN_EXPORT("typing") int typing() {
  return game->program->desk().focus() >= 0 ? 1 : 0;
}

/// Keeps the city that is open, when the page may not come back. Returns whether there was one.
VELLMORAN_EXPORT("keepUnsavedCity") int keepUnsavedCity() {
  return shell::keepUnsavedCity(*game->program) ? 1 : 0;
}

/// Shows a message box of the game.
VELLMORAN_EXPORT("showBox") void showBox(char* title, int titleSize, char* body, int bodySize) {
  const Handed head(title, titleSize);
  const Handed lines(body, bodySize);
  desk().showBox(head.view(), lines.view());
}

/// What is wrong with the bytes of a saved game, as text that ends with a zero byte; empty for a sound one.
VELLMORAN_EXPORT("faultOfGame") const char* faultOfGame(char* bytes, int size) {
  answer.clear();
  const auto record = std::make_unique<store::Record>();
  const Handed file(bytes, size);
  if (!store::parseRecord(file.view(), *record, answer) && answer.empty()) answer = "is damaged";
  return answer.c_str();
}
