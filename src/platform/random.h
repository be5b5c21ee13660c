// Uniform random numbers.
//
// Two streams are kept apart: draws of rules (ground, earthquake) and draws of decoration (walkers),
// so that a walker more or less changes no earthquake under a fixed seed.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/clock.h"

namespace platform {

class Random {
 public:
  /// With a clock, each draw mixes the clock into the running state. Without one the stream is
  /// repeatable from its seed.
  explicit Random(Clock* clock, std::uint64_t seed = 0x9E3779B97F4A7C15u);

  /// A draw u, uniform in 0 <= u < 1.
  double uniform();

  /// Makes the stream repeatable from here on and drops the draws that were fed.
  void seed(std::uint64_t value);
  /// Queues a draw, 0 <= u < 1; queued draws come first, in their order.
  void feed(double u);

 private:
  std::uint64_t next();

  Clock* clock_;
  std::uint64_t state_;
  std::vector<double> fed_;
  std::size_t fedTaken_ = 0;
};

}  // namespace platform
