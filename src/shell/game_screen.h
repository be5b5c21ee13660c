// The game screen `frmMain`: one city, from the opening of the screen to its end.
//
// Its handlers are found by table (shell/game_handlers.cpp). Its opening is in
// shell/opening.h, the game tick in shell/game_tick.h, saving and loading in shell/saved_games.h, and
// the ways back to the menu in shell/leaving.h.
#pragma once

#include <memory>

#include "core/game_state.h"
#include "platform/random.h"
#include "play/scene.h"
#include "shell/screen.h"
#include "sound/music.h"
#include "store/record.h"

namespace shell {

class Program;

class GameScreen : public Screen {
 public:
  explicit GameScreen(Program& program);

  /// Runs the opening. False when the city of the mission before could not be taken over; a message
  /// box says so.
  bool load();

  const char* name() const override { return "frmMain"; }
  void tick(int timer) override;
  void onMouseMove(int id, int x, int y) override;
  void onMouseDown(int id, int x, int y) override;
  void onClick(int id) override;
  void onChoose(int id) override;
  void onDoubleClick(int id) override;
  void onKey(platform::Key key) override;
  core::GameState* game() override { return game_.get(); }
  platform::Canvas* canvas() override { return &stage_.canvas; }

  // For the handlers.
  play::Scene& scene() { return scene_; }
  Program& program() { return program_; }
  const std::string& folder() const;
  /// Brings in the backdrop of the mode that is about to be shown.
  bool readBackdrop(double mode, std::string& error);
  platform::Random& random();
  platform::Random& walkerRandom();
  /// The checked record that waits for the second half of a load; null when none does.
  std::unique_ptr<store::Record>& waitingRecord() { return waitingRecord_; }

 private:
  Program& program_;
  std::unique_ptr<core::GameState> game_;
  map::Stage stage_;
  play::Scene scene_;
  std::unique_ptr<store::Record> waitingRecord_;
};

/// Picks an entry of the music list by program, which acts like a player's choice.
void chooseMusic(GameScreen& screen, sound::MusicChoice choice);

}  // namespace shell
