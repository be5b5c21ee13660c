// The menu screen `firstmenu`: chooses the mode of play, sets what a game starts from, and opens the
// game screen. It is built again at every return from a game.
#pragma once

#include "shell/menu_controls.h"
#include "shell/screen.h"
#include "sound/cues.h"

namespace shell {

class Program;

class MenuScreen : public Screen {
 public:
  explicit MenuScreen(Program& program);

  /// What the menu does as it loads: defaults, display, progress, and the first panel. The display may
  /// refuse, and the program then ends.
  void load();

  const char* name() const override { return "firstmenu"; }
  void tick(int timer) override;
  void onMouseMove(int id, int x, int y) override;
  void onMouseDown(int, int, int) override {}
  void onClick(int id) override;
  void onChoose(int) override {}

  // For the handlers.
  Program& program() { return program_; }
  core::ProgramValues& values();
  platform::Text& text(int control) { return form()[control].text; }
  /// The menu's cues sound whatever the player's switch says.
  void cue(sound::Cue cue);
  /// Puts a panel in the middle of the screen and shows it.
  void showPanel(int panel);
  /// Highest mission reached, 1..11, until a mode is chosen.
  double reachedMission();

  int mainHoverRow = 0;  // row of a panel that the pointer lit last, 0 for none
  int startHoverRow = 0;
  bool exitWarned = false;  // EXIT GAME has said that progress would be lost

 private:
  Program& program_;
};

}  // namespace shell
