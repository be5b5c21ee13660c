// A game of open play, side 24 and 600 gold, and what a player reads on its screen.
#pragma once

#include "play/game_controls.h"
#include "shell/script_runner.h"

namespace script {

namespace ui = play::game_control;

class OpenGame : public Play {
 public:
  OpenGame() { run("click mainnew\nclick stopen\nclick opengo\nadvance 500"); }

  core::GameState& state() { return *session().program().screen()->game(); }
  platform::Form& form() { return session().program().screen()->form(); }
  std::string text(int control) { return std::string(form()[control].text.view()); }
  bool shown(int control) { return form().shown(control); }
  bool runs(const std::string& timer) { return (*this)("timer " + timer).starts_with("ok on"); }
  /// Lets a tick of the clock end the month.
  void endMonth() { run("set tickOfMonth 40\nadvance 1000"); }
};

}  // namespace script
