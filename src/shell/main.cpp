// The game itself: a window, real sound, the machine's clock.
#include <algorithm>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/pausing_clock.h"
#include "platform/program_folder.h"
#include "platform/sdl/sdl_clipboard.h"
#include "platform/sdl/sdl_clock.h"
#include "platform/sdl/sdl_display.h"
#include "platform/sdl/sdl_events.h"
#include "platform/sdl/sdl_media.h"
#include "platform/sdl/session_end.h"
#include "shell/program.h"
#include "shell/unsaved_city.h"

namespace {

/// Brings what happens in the window to the program.
class Window {
 public:
  Window(platform::SdlDisplay& display, platform::PausingClock& clock, shell::Program& program)
      : display_(display), clock_(clock), program_(program), events_(display) {
    platform::whenDisplayIsLost([this] { endFromOutside(); });
  }
  ~Window() { platform::whenDisplayIsLost({}); }
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  /// Delivers what waits, after waiting for it up to `timeout` milliseconds.
  void takeEvents(std::int64_t timeout) {
    platform::Event event;
    while (!program_.ended() && events_.next(event, timeout)) {
      clock_.setPaused(display_.hidden());
      program_.desk().setNow(clock_.milliseconds());
      platform::deliver(event, program_.desk());
      if (event.kind == platform::EventKind::redraw) program_.painter().forget();
      if (event.kind == platform::EventKind::quit) endFromOutside();
      notePage();
      timeout = 0;
    }
    program_.desk().setEdgeScrolling(events_.edgeScrolling());
    program_.settle();
  }

  /// Shows what has changed, sleeps until something happens or a timer is due, and lets the program
  /// act on it. With work left to do it sleeps not at all.
  void step(bool workLeft) {
    const platform::DamageList& changed = program_.paint();
    if (!changed.empty()) display_.present(program_.framebuffer(), changed.rects());
    takeEvents(workLeft ? 0 : untilDue());
    program_.runTimers();
    notePage();
  }

 private:
  void endFromOutside() {
    shell::keepUnsavedCity(program_);
    program_.end(0);
  }
  /// Milliseconds; -1 where only an event will bring something to do.
  std::int64_t untilDue() {
    const std::int64_t due = clock_.paused() ? -1 : program_.nextDue();
    return due < 0 ? -1 : std::max<std::int64_t>(0, due - clock_.milliseconds());
  }
  void notePage() {
    if (program_.pages() == page_) return;
    page_ = program_.pages();
    events_.screenOpened();
  }

  platform::SdlDisplay& display_;
  platform::PausingClock& clock_;
  shell::Program& program_;
  platform::SdlEvents events_;
  int page_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--version") {
    std::puts("Vellmoran " VELLMORAN_VERSION);
    return 0;
  }
  if (argc > 1) {
    std::fputs("usage: vellmoran [--version]\n", stderr);
    return 2;
  }
  const std::string home = platform::executableFolder();
  const std::string beside = home + "/data";
  const std::string data =
      platform::fileExists(beside + "/font.otf") ? beside : home + "/" VELLMORAN_DATA_FROM_PROGRAM;
  platform::SdlDisplay display(data + "/pictures/icon/128.png", data + "/font.otf");
  std::optional<shell::Assets> assets(display.likelyScale());
  assets->begin(data);
  std::string folder;
  std::string error;
  std::string folderFault;
  if (!platform::findProgramFolder(folder, error) || !platform::enterFolder(folder, error)) {
    folderFault = "Games cannot be saved: " + error;  // and played all the same
    std::fprintf(stderr, "vellmoran: %s\n", folderFault.c_str());
  }
  if (assets->scale() != display.scale()) assets.emplace(display.scale());
  if (!assets->open(data, error)) {
    display.message("Error", error.c_str());
    return 1;
  }
  platform::SdlClock realClock;
  platform::PausingClock clock(realClock);
  platform::SdlMedia media(folder, data + "/sound");
  platform::Random random(&realClock, realClock.ticks());
  platform::Random walkerRandom(&realClock, realClock.ticks());
  platform::SdlClipboard clipboard;
  shell::Services services{clock,   random, walkerRandom, media,      display,
                           *assets, folder, {},           &clipboard, folderFault};
  shell::Program program(services);
  Window window(display, clock, program);
  services.letEventsIn = [&window] { window.takeEvents(0); };

  program.start();
  bool preparing = true;  // the first picture waits neither for the game's nor for the audio device
  while (!program.ended()) {
    window.step(preparing);
    if (!preparing || program.ended()) continue;
    preparing = program.readAhead();
    if (!preparing && !program.ended()) media.open();
  }
  return program.exitStatus();
}
