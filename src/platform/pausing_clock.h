// A clock that can be stopped, for a game that nobody sees.
#pragma once

#include "platform/clock.h"

namespace platform {

class PausingClock : public Clock {
 public:
  /// `real` must outlive this clock.
  explicit PausingClock(Clock& real) : real_(real) {}

  /// Stops the clock, or lets it go on at the millisecond at which it stopped.
  void setPaused(bool paused) {
    if (paused == paused_) return;
    if (paused) {
      stoppedAt_ = milliseconds();
    } else {
      behind_ = real_.milliseconds() - stoppedAt_;
    }
    paused_ = paused;
  }
  bool paused() const { return paused_; }

  std::int64_t milliseconds() override {
    return paused_ ? stoppedAt_ : real_.milliseconds() - behind_;
  }
  std::uint64_t ticks() override { return real_.ticks(); }

 private:
  Clock& real_;
  std::int64_t behind_ = 0;     // milliseconds for which it was stopped
  std::int64_t stoppedAt_ = 0;  // what it shows while stopped
  bool paused_ = false;
};

}  // namespace platform
