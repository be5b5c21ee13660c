#include "platform/timers.h"

namespace platform {

Timers::Timers(std::span<const TimerDesign> table, Clock& clock)
    : table_(table), clock_(clock), states_(table.size()) {
  for (int id = 0; id < count(); ++id) {
    if (table_[id].on) enable(id);
  }
}

void Timers::enable(int id) {
  State& state = states_[id];
  if (state.on) return;
  state.on = true;
  state.due = clock_.milliseconds() + interval(id);
}

int Timers::find(std::string_view name) const {
  for (int id = 0; id < count(); ++id) {
    if (name == this->name(id)) return id;
  }
  return -1;
}

std::int64_t Timers::nextDue() const {
  std::int64_t earliest = -1;
  for (const State& state : states_) {
    if (state.on && (earliest < 0 || state.due < earliest)) earliest = state.due;
  }
  return earliest;
}

int Timers::takeDue() {
  const std::int64_t now = clock_.milliseconds();
  int taken = -1;
  for (int id = 0; id < count(); ++id) {
    const State& state = states_[id];
    if (!state.on || state.due > now) continue;
    if (taken < 0 || state.due < states_[taken].due) taken = id;
  }
  if (taken < 0) return -1;
  // A timer that is a little late keeps its rhythm; one that missed a whole interval restarts.
  State& state = states_[taken];
  state.due += interval(taken);
  if (state.due <= now) state.due = now + interval(taken);
  return taken;
}

}  // namespace platform
