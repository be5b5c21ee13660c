// The timers of one screen.
//
// Switching a timer on starts its interval; switching it on again while it runs changes nothing. The
// ticks of one timer do not pile up: a tick that could not be taken in time comes once. Timers that
// fall due together tick in the order of the table.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace platform {

struct TimerDesign {
  const char* name;
  int interval;     // milliseconds, at least 1
  bool on = false;  // as the screen opens
};

class Timers {
 public:
  /// `clock` must outlive the timers.
  Timers(std::span<const TimerDesign> table, Clock& clock);

  bool enabled(int id) const { return states_[id].on; }
  void enable(int id);
  void disable(int id) { states_[id].on = false; }
  void setEnabled(int id, bool on) { on ? enable(id) : disable(id); }
  int interval(int id) const { return table_[id].interval; }
  const char* name(int id) const { return table_[id].name; }
  int count() const { return static_cast<int>(table_.size()); }
  /// Row of the timer with this name, or -1.
  int find(std::string_view name) const;

  /// When the next tick is due, in milliseconds of the clock; -1 when no timer runs.
  std::int64_t nextDue() const;
  /// The timer whose tick is to be taken now, or -1. Its next interval has begun when this returns.
  int takeDue();

 private:
  struct State {
    bool on = false;
    std::int64_t due = 0;
  };
  std::span<const TimerDesign> table_;
  Clock& clock_;
  std::vector<State> states_;
};

}  // namespace platform
