// The game itself: a window, real sound, the machine's clock.
#include <cstdio>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/program_folder.h"
#include "platform/sdl/sdl_clipboard.h"
#include "platform/sdl/sdl_clock.h"
#include "platform/sdl/sdl_display.h"
#include "platform/sdl/sdl_events.h"
#include "platform/sdl/sdl_media.h"
#include "shell/program.h"
#include "shell/unsaved_city.h"

namespace {

void deliver(const platform::Event& event, shell::Program& program) {
  platform::Desk& desk = program.desk();
  using Kind = platform::EventKind;
  switch (event.kind) {
    case Kind::pointer:
      desk.pointerMoved(event.point);
      break;
    case Kind::down:
      desk.buttonDown(event.point, event.held);
      break;
    case Kind::up:
      desk.buttonUp(event.point);
      break;
    case Kind::wheel:
      desk.wheel(event.steps);
      break;
    case Kind::text:
      desk.type(event.text.data());
      break;
    case Kind::key:
      desk.key(event.key, event.held);
      break;
    case Kind::redraw:
      program.painter().forget();
      break;
    case Kind::quit:
      shell::keepUnsavedCity(program);
      program.end(0);
      break;
  }
}

/// Delivers what waits at the window, after waiting for it up to `timeout` milliseconds.
void takeEvents(platform::SdlEvents& events, shell::Program& program, std::int64_t timeout) {
  platform::Event event;
  while (!program.ended() && events.next(event, timeout)) {
    program.desk().setNow(program.services().clock.milliseconds());
    deliver(event, program);
    timeout = 0;
  }
  program.settle();
}

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
  platform::SdlClock clock;
  platform::SdlDisplay display(data + "/pictures/icon/128.png");
  std::string folder;
  std::string error;
  if (!platform::findProgramFolder(folder, error) || !platform::enterFolder(folder, error)) {
    // The game can be played all the same. The menu says so when it cannot keep the progress there.
    std::fprintf(stderr, "vellmoran: %s\n", error.c_str());
  }
  shell::Assets assets;
  if (!assets.open(data, error)) {
    display.message("Error", error.c_str());
    return 1;
  }
  platform::SdlMedia media(folder, data + "/sound");
  platform::SdlEvents events(display);
  platform::Random random(&clock, clock.ticks());
  platform::Random walkerRandom(&clock, clock.ticks());
  platform::SdlClipboard clipboard;
  shell::Services services{clock,  random, walkerRandom, media,     display,
                           assets, folder, {},           &clipboard};
  shell::Program program(services);
  services.letEventsIn = [&] { takeEvents(events, program, 0); };

  program.start();
  bool preparing = true;  // the first picture waits neither for the game's nor for the audio device
  while (!program.ended()) {
    const platform::DamageList& changed = program.paint();
    if (!changed.empty()) display.present(program.framebuffer(), changed.rects());
    if (preparing) {
      preparing = program.readAhead();
      if (!preparing && !program.ended()) media.open();
    }
    const std::int64_t due = program.nextDue();
    const std::int64_t now = clock.milliseconds();
    takeEvents(events, program, preparing ? 0 : due < 0 ? -1 : due > now ? due - now : 0);
    program.runTimers();
  }
  return program.exitStatus();
}
