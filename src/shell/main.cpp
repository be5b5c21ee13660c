// The game itself: a window, real sound, the machine's clock.
#include <cstdio>
#include <string>

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

int fail(const std::string& what) {
  std::fprintf(stderr, "vellmoran: %s\n", what.c_str());
  return 1;
}

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

int main() {
  const std::string home = platform::executableFolder();
  std::string folder;
  std::string error;
  if (!platform::findProgramFolder(folder, error) || !platform::enterFolder(folder, error)) {
    return fail(error);
  }
  const std::string data = home + "/data";
  platform::SdlClock clock;
  platform::SdlDisplay display(data + "/pictures/icon.png");
  shell::Assets assets(display.scale());
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
