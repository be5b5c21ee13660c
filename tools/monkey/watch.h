// What must hold after everything the monkey does.
//
// A city that came from a damaged file is watched less closely: its numbers are taken as they are, and
// need not fit one another.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/game_timers.h"
#include "driver/session.h"
#include "monkey/mischief.h"

namespace monkey {

class Watch {
 public:
  Watch(Mischief& mischief, shell::Assets& assets) : mischief_(mischief), assets_(assets) {}

  /// A new run of the program begins.
  void begin(driver::Session& session);
  /// Before an event.
  void before();
  /// After every stretch of time, of `stretch` milliseconds at most, and at the end of an event.
  void step();
  int stretch();
  /// After an event. `dear`: with the checks that take long.
  void after(bool dear);
  /// Compares the pictures with complete redraws; what differs is saved beside the program's
  /// folder.
  void pictures();

  /// What the play came to.
  struct Tally {
    std::array<long, 30> games{};  // by the mission that the screen was opened for
    long loads = 0, spoiltLoads = 0, losses = 0, quakes = 0, won = 0, failed = 0, solved = 0;
    double mostPeople = 0;
    int mostApartments = 0;  // but for the demonstration
  };
  const Tally& tally() const { return tally_; }

  /// What is wrong; empty as long as nothing is.
  const std::string& fault() const { return fault_; }

 private:
  shell::Screen* screen() { return session_->program().screen(); }
  core::GameState* game() { return screen() != nullptr ? screen()->game() : nullptr; }
  core::ProgramValues& values() { return session_->program().values(); }
  bool on(int timer) { return screen()->timers().enabled(timer); }
  /// There is no city yet: the screen waits for a game to be chosen.
  bool waiting() { return values().gLoadPending == 1; }
  bool sound() { return game() != nullptr && !waiting() && !spoilt_; }
  void wrong(const std::string& what) {
    if (fault_.empty()) fault_ = what;
  }

  void newScreen();
  void watchLoad();
  void watchTick();
  void watchAges();
  void watchGameTimers();
  void watchGameControls();
  void watchMenu();
  void watchIds();
  void watchSave();
  void watchWalkers();
  void watchSurface();
  void watchFramebuffer();

  Mischief& mischief_;
  shell::Assets& assets_;
  driver::Session* session_ = nullptr;
  std::string fault_;
  Tally tally_;

  int opened_ = -1;      // number of the open screen
  bool spoilt_ = false;  // the city came from a damaged file
  bool stale_ = false;   // a road was lost: residences may show another stage than they have
  std::array<std::int64_t, core::game_timer::kTimers.size()> onSince_{};  // -1: off

  std::string loading_;  // the game that is being loaded, what its file holds, whether it is spoilt
  std::string loadingText_;
  bool loadingSpoilt_ = false;
  const void* loadingRecord_ = nullptr;
  std::string saving_;  // name on the save panel before the event

  double tickOfMonth_ = 0;
  double month_ = 0;
  core::CellGrid<core::Number> ids_;
  double nextId_ = -1;  // below 0: the ids are not known
  double taxRate_ = 0;

  std::vector<bool> walked_;  // pixels of the surface where walkers have been
  std::unique_ptr<platform::Canvas> redrawn_;
  platform::Surface shown_;
};

/// What is wrong with the cells and sums of a city, or nothing. `stale`: residences may show another
/// stage than they have.
std::string cityFault(const core::GameState& game, const core::ProgramValues& values, bool stale);
/// Whether the effect areas are those of the buildings on the map.
bool coverFits(const core::GameState& game);

/// How a loaded game differs from the file that it came from, or nothing.
std::string loadFault(const std::string& file, const core::GameState& game,
                      const core::ProgramValues& values);

}  // namespace monkey
