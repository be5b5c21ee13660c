#include "platform/sdl/session_end.h"

#include <X11/Xlib.h>
#include <signal.h>

#include <cstdlib>
#include <utility>

namespace platform {

namespace {

std::function<void()> lastAct;

int displayLost(Display*) {
  // Another error of the dead display must not begin this over again.
  const std::function<void()> act = std::exchange(lastAct, {});
  if (act) act();
  std::_Exit(act ? EXIT_SUCCESS : EXIT_FAILURE);
}

}  // namespace

void hangUpAsTermination() {
  struct sigaction hangUp {};
  sigaction(SIGHUP, nullptr, &hangUp);
  if (hangUp.sa_handler != SIG_DFL) return;
  hangUp.sa_handler = [](int) { raise(SIGTERM); };
  sigaction(SIGHUP, &hangUp, nullptr);
}

void whenDisplayIsLost(std::function<void()> act) {
  lastAct = std::move(act);
  XSetIOErrorHandler(lastAct ? displayLost : nullptr);
}

}  // namespace platform
