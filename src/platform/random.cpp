#include "platform/random.h"

namespace platform {

namespace {

// The generator is SplitMix64: a state that grows by this odd step, and a mix of it as the draw.
constexpr std::uint64_t kStep = 0x9E3779B97F4A7C15u;

// Spreads every bit of x over the whole word; one to one.
std::uint64_t scramble(std::uint64_t x) {
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9u;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EBu;
  return x ^ (x >> 31);
}

}  // namespace

Random::Random(Clock* clock, std::uint64_t seed) : clock_(clock), state_(scramble(seed)) {}

double Random::uniform() {
  if (fedTaken_ < fed_.size()) {
    const double u = fed_[fedTaken_++];
    if (fedTaken_ == fed_.size()) {
      fed_.clear();
      fedTaken_ = 0;
    }
    return u;
  }
  return static_cast<double>(next() >> 11) * 0x1p-53;
}

void Random::seed(std::uint64_t value) {
  clock_ = nullptr;
  state_ = scramble(value);
  fed_.clear();
  fedTaken_ = 0;
}

void Random::feed(double u) {
  fed_.push_back(u);
}

// The clock, where there is one, is mixed in before each draw. It only ever adds an even number, so
// while it does not move the state advances in odd steps and takes all of its values before it repeats.
std::uint64_t Random::next() {
  if (clock_ != nullptr) state_ += 2 * scramble(clock_->ticks());
  state_ += kStep;
  return scramble(state_);
}

}  // namespace platform
