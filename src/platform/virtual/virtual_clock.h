// A clock that moves only when it is advanced.
#pragma once

#include "platform/clock.h"

namespace platform {

class VirtualClock : public Clock {
 public:
  std::int64_t milliseconds() override { return now_; }
  std::uint64_t ticks() override { return ++ticks_; }
  /// Sets the time, which must not be before the present.
  void advanceTo(std::int64_t now) { now_ = now; }

 private:
  std::int64_t now_ = 0;
  std::uint64_t ticks_ = 0;
};

}  // namespace platform
