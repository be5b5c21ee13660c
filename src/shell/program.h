// The program: the values that outlive a game, and the screen that is open.
//
// There is no main loop in here. Whoever started the program brings it the pointer through the desk,
// lets its timers run, and shows its framebuffer. All of it happens on one thread; a tick or a click
// runs to its end before the next begins.
#pragma once

#include <memory>
#include <vector>

#include "platform/canvas.h"
#include "platform/desk.h"
#include "platform/painter.h"
#include "shell/screen.h"
#include "shell/services.h"
#include "store/progress_keeper.h"

namespace shell {

class Program {
 public:
  explicit Program(Services& services);
  ~Program();

  /// Opens the menu. The display may refuse, and the program has then ended.
  void start();
  /// The program has ended, or is about to.
  bool ended() const { return ended_; }
  int exitStatus() const { return exitStatus_; }

  platform::Desk& desk() { return desk_; }
  /// Grows whenever another screen, or another panel of the menu, comes up under the pointer.
  int pages() const { return pages_; }
  void turnPage() { ++pages_; }
  /// The open screen; null once the program has ended.
  Screen* screen() { return screen_.get(); }

  /// Runs every timer that is due, in order of its due time.
  void runTimers();
  /// When the program wants to be woken, in milliseconds of the clock; -1 for not at all.
  std::int64_t nextDue();
  /// To be called after every event that was given to the desk: lets go of screens that were closed.
  void settle();

  /// Reads a little more of what the game screen needs, and returns whether more is left. To be called
  /// while the menu waits; what is still missing when a game opens is read then. A file that cannot be
  /// read ends the program with a message.
  bool readAhead();

  /// Brings the framebuffer up to date; returns what changed.
  const platform::DamageList& paint();
  const platform::Surface& framebuffer() const { return framebuffer_; }
  platform::Painter& painter() { return painter_; }

  // For the screens.
  Services& services() { return services_; }
  core::ProgramValues& values() { return values_; }
  platform::Media& media() { return services_.media; }
  store::ProgressKeeper& progress() { return progress_; }
  platform::Canvas& canvas() { return canvas_; }
  /// Opens the game screen in place of the menu: everything that its opening does happens in here.
  void openGame();
  /// Opens a new menu in place of the game screen.
  void openMenu();
  void end(int exitStatus);
  /// Lets events and ticks that wait run, in the middle of a handler. The screen that called may be
  /// closed when this returns; it stays in memory until its handler has ended.
  void letWaitingHandlersRun();

 private:
  void open(std::unique_ptr<Screen> screen);
  void endWith(const std::string& error);

  Services& services_;
  core::ProgramValues values_;
  store::ProgressKeeper progress_;
  platform::Desk desk_;
  platform::Painter painter_;
  platform::Surface framebuffer_;
  platform::Canvas canvas_;
  std::unique_ptr<Screen> screen_;
  std::vector<std::unique_ptr<Screen>> closed_;
  int pages_ = 0;
  int depth_ = 0;
  bool ended_ = false;
  int exitStatus_ = 0;
};

}  // namespace shell
