// A city that fills the largest map, in a game that runs without a window.
#pragma once

#include <memory>
#include <string>

#include "driver/session.h"
#include "shell/game_screen.h"

namespace bench {

class FullCity {
 public:
  /// Rows of road across the whole square of side 28, residences and all services between them. The
  /// program runs in a new folder below /tmp, which goes with the object.
  FullCity();
  ~FullCity();
  FullCity(const FullCity&) = delete;
  FullCity& operator=(const FullCity&) = delete;

  driver::Session& session() { return *session_; }
  shell::GameScreen& screen();
  play::Scene& scene() { return screen().scene(); }
  core::GameState& game() { return *screen().game(); }
  /// Uses a tool on a cell, as a press does.
  void use(int tool, int x, int y);

 private:
  std::string folder_;
  std::unique_ptr<driver::Session> session_;
};

}  // namespace bench
