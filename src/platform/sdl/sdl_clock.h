// The clock of the machine.
#pragma once

#include "platform/clock.h"

namespace platform {

class SdlClock : public Clock {
 public:
  std::int64_t milliseconds() override;
  std::uint64_t ticks() override;
};

}  // namespace platform
