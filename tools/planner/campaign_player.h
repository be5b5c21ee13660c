// A player at the program without a window: presses and clicks only, every one of them written down as
// a command of the driver.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "driver/session.h"
#include "planner/campaign_town.h"

namespace campaign {

enum Tool { kHouse = 1, kMarket, kSchool, kTavern, kChurch, kDoctor, kDemolish, kRoad, kFarm };

class Player {
 public:
  explicit Player(std::unique_ptr<driver::Session> session) : session_(std::move(session)) {}

  /// Runs a command, which must be answered with ok, and writes it down.
  std::string run(const std::string& command);
  /// Runs a command and writes it down with its answer as what must come.
  std::string expect(const std::string& command);
  void remark(const std::string& text) { write("# " + text); }
  void blankLine() { write(""); }
  const std::string& script() const { return script_; }
  /// Lets time pass.
  void advance(int milliseconds);
  /// Runs a command that is no part of the play: a picture.
  void aside(const std::string& command);

  /// The game screen has just opened: its one-second tick counts from now.
  void gameOpened(bool takenOver);
  /// Lets time pass to the next tick of the game.
  void tick();

  core::GameState& game() { return *session_->program().screen()->game(); }
  core::ProgramValues& values() { return session_->program().values(); }
  bool inGame() { return session_->program().screen()->game() != nullptr; }

  /// Whether the tool's building stands anchored at the cell.
  bool stands(Tool tool, Cell at);
  bool unlocked(Tool tool);
  /// One press; false, and nothing pressed, when the treasury allows no building.
  bool press(Tool tool, Cell at);
  void setTax(int percent);
  /// 16, 25 or 34 ticks a month.
  void setSpeed(int ticks);

 private:
  void write(const std::string& line);
  void closeNotice();
  void slideTo(Cell at);
  Cell pixelOf(Cell at);

  std::unique_ptr<driver::Session> session_;
  std::string script_;
  std::int64_t sinceOpening_ = 0;
  int unwritten_ = 0;  // milliseconds that have passed since the last line of the script
  bool palette_ = true;
};

int sideOf(Tool tool);

}  // namespace campaign
