// Time as the page counts it: it stops while the page is hidden.
#pragma once

#include "platform/browser/host.h"
#include "platform/clock.h"

namespace platform {

class BrowserClock : public Clock {
 public:
  std::int64_t milliseconds() override { return static_cast<std::int64_t>(pageMilliseconds()); }
  std::uint64_t ticks() override { return static_cast<std::uint64_t>(pageTicks()); }
};

}  // namespace platform
