// Plays the program by presses and clicks, looks at the city, and writes down what it did as a driver
// script that does the same again.
#pragma once

#include <memory>
#include <string>

#include "driver/session.h"
#include "planner/layouts.h"

namespace planner {

/// The tools, by their numbers on the palette.
enum Tool { kResidence = 1, kMarket, kSchool, kTavern, kChurch, kDoctor, kDemolish, kRoad, kFarm };

/// Something in a plan that did not come about; ends the planning of this script.
struct Failure {
  std::string what;
};

class Player {
 public:
  /// Starts the program in an empty folder of its own.
  explicit Player(std::shared_ptr<shell::Assets> assets);
  ~Player();
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  /// Opens a puzzle level, 1..10, from the menu.
  void openPuzzle(int level);

  /// Opens open play as the panel stands: normal land, 600 gold, a square of 25 cells.
  void openOpenPlay();

  /// A remark in the script.
  void remark(const std::string& text);
  /// A command; it must be answered with ok. Returns the value.
  std::string act(const std::string& command);
  /// A look at the program that the script does not repeat.
  std::string look(const std::string& command);
  double get(const std::string& name);
  /// A command whose answer becomes part of the script.
  void expect(const std::string& command);

  /// Uses a tool on the cell, counted from the first of the play square. Notices in the way are
  /// closed and the map is slid where the panel covers the cell. A refusal is a failure.
  void use(Tool tool, Cell cell);
  /// As `use`, on all of them in order.
  void use(Tool tool, const std::vector<Cell>& cells);

  /// Sets the tax rate in the status report.
  void tax(int rate);
  /// Months of 34 seconds from the next on.
  void slowDown();
  /// Months of 16 seconds from the next on.
  void speedUp();
  /// Lets seconds pass, each a tick of the game.
  void ticks(int count);
  /// Seconds that `look` has let pass already become part of the script.
  void skipped(int seconds);
  int ticksPlayed() const { return ticks_; }

  /// Whether the panel that ends a level is open.
  bool ended();
  /// Waits for the end of the level, at most `limit` seconds, and writes the proof: what the panel
  /// says, the figure of the goal, the list of levels with its mark.
  void finishPuzzle(int level, int limit, const std::string& figure);

  const std::string& script() const { return script_; }
  /// Keeps what the map shows now.
  void takePicture();
  /// Writes the kept picture of the play square as PNG, a large one at half its size.
  void writePicture(const std::string& path) const;

 private:
  bool isOpen(const char* control);
  void clickCell(Cell cell);

  std::string folder_;
  platform::Surface picture_;
  int pictureSide_ = 0;  // cells each way of the play square in the picture
  std::unique_ptr<driver::Session> session_;
  std::string script_;
  int ticks_ = 0;
  int pending_ = 0;  // milliseconds slid away since the last whole second
};

}  // namespace planner
