// What the monkey does next: mostly nonsense, with short plans in between that a player could have,
// so that it gets everywhere.
#pragma once

#include <deque>
#include <string>

#include "driver/session.h"
#include "monkey/chance.h"

namespace monkey {

class Hands {
 public:
  explicit Hands(Chance& chance) : chance_(chance) {}

  /// A command of the driver, or "wheel STEPS". It may turn out not to be possible.
  std::string next(driver::Session& session);

 private:
  std::string nonsense(driver::Session& session);
  std::string named(driver::Session& session);
  std::string cell(driver::Session& session, int astray);
  std::string wait();
  void plan(driver::Session& session);
  void planInMenu();
  void planInGame(driver::Session& session);
  void planTown();
  void planStreet(driver::Session& session);
  void add(std::string command) { plan_.push_back(std::move(command)); }

  Chance& chance_;
  std::deque<std::string> plan_;  // commands, and words for presses on the map
  int lastX_ = 15;
  int lastY_ = 15;
};

}  // namespace monkey
