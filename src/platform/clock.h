// Time as the program sees it.
#pragma once

#include <cstdint>

namespace platform {

class Clock {
 public:
  virtual ~Clock() = default;
  /// Milliseconds since some fixed moment; never runs backwards.
  virtual std::int64_t milliseconds() = 0;
  /// A fast-changing count that seeds random draws; it need not be a time.
  virtual std::uint64_t ticks() = 0;
};

}  // namespace platform
