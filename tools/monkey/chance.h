// What the monkey rolls: the same seed gives the same play.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace monkey {

class Chance {
 public:
  explicit Chance(std::uint64_t seed) : generator_(seed) {}

  /// A whole number of 0 .. below - 1.
  int draw(int below) { return static_cast<int>(generator_() % static_cast<std::uint64_t>(below)); }
  int between(int low, int high) { return low + draw(high - low + 1); }
  bool percent(int likely) { return draw(100) < likely; }
  template <class List>
  const auto& pick(const List& list) {
    return list[draw(static_cast<int>(std::size(list)))];
  }
  std::uint64_t seed() { return generator_() >> 12; }

 private:
  std::mt19937_64 generator_;
};

}  // namespace monkey
