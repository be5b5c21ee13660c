#include "platform/sdl/sdl_clock.h"

#include <chrono>

namespace platform {

namespace {

template <typename Unit>
auto sinceBoot() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<Unit>(now).count();
}

}  // namespace

std::int64_t SdlClock::milliseconds() {
  return sinceBoot<std::chrono::milliseconds>();
}

std::uint64_t SdlClock::ticks() {
  return static_cast<std::uint64_t>(sinceBoot<std::chrono::nanoseconds>());
}

}  // namespace platform
