#include "platform/random.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "platform/virtual/virtual_clock.h"

namespace platform {
namespace {

constexpr int kDraws = 100000;

// A clock on which no time passes between any two draws.
class StandingClock : public Clock {
 public:
  std::int64_t milliseconds() override { return 0; }
  std::uint64_t ticks() override { return 123456789; }
};

// Deviation of counts from equal shares, in standard deviations of the chi-square it follows.
template <std::size_t N>
double deviation(const std::array<int, N>& counts, double draws) {
  const double share = draws / N;
  double chi = 0;
  for (const int count : counts) chi += (count - share) * (count - share) / share;
  return (chi - (N - 1)) / std::sqrt(2.0 * (N - 1));
}

void expectUniformAndIndependent(Random& random) {
  std::array<int, 100> singles{};
  std::array<int, 400> pairs{};
  std::array<int, 512> triples{};
  std::array<int, 64> lowBits{};
  double before = random.uniform();
  double beforeThat = random.uniform();
  for (int i = 0; i < kDraws; ++i) {
    const double u = random.uniform();
    ASSERT_GE(u, 0.0);
    ASSERT_LT(u, 1.0);
    ++singles[static_cast<std::size_t>(u * 100)];
    ++pairs[static_cast<std::size_t>(u * 20) * 20 + static_cast<std::size_t>(before * 20)];
    ++triples[static_cast<std::size_t>(u * 8) * 64 + static_cast<std::size_t>(before * 8) * 8 +
              static_cast<std::size_t>(beforeThat * 8)];
    ++lowBits[static_cast<std::size_t>(u * 0x1p53) & 63];
    beforeThat = before;
    before = u;
  }
  EXPECT_LT(std::abs(deviation(singles, kDraws)), 5);
  EXPECT_LT(std::abs(deviation(pairs, kDraws)), 5);
  EXPECT_LT(std::abs(deviation(triples, kDraws)), 5);
  EXPECT_LT(std::abs(deviation(lowBits, kDraws)), 5);
}

TEST(Random, DrawsAreUniformAndIndependentHoweverTheClockRuns) {
  StandingClock standing;
  VirtualClock counting;
  Random atOneMoment(&standing);
  Random oneTickApart(&counting);
  Random repeatable(nullptr, 1);
  expectUniformAndIndependent(atOneMoment);
  expectUniformAndIndependent(oneTickApart);
  expectUniformAndIndependent(repeatable);

  // Streams of neighbouring seeds have nothing in common.
  std::array<int, 400> pairs{};
  Random next(nullptr, 2);
  for (int i = 0; i < kDraws; ++i) {
    const auto row = static_cast<std::size_t>(repeatable.uniform() * 20);
    ++pairs[row * 20 + static_cast<std::size_t>(next.uniform() * 20)];
  }
  EXPECT_LT(std::abs(deviation(pairs, kDraws)), 5);
}

TEST(Random, TheClockSeedsAndASeedRepeats) {
  VirtualClock clock;
  Random first(&clock);
  Random second(&clock);
  EXPECT_NE(first.uniform(), second.uniform());
  first.feed(0.25);
  first.seed(7);
  second.seed(7);
  for (int i = 0; i < 100; ++i) EXPECT_EQ(first.uniform(), second.uniform());
}

TEST(Random, FedDrawsComeFirstAndDoNotMoveTheStream) {
  Random fed(nullptr, 5);
  Random plain(nullptr, 5);
  EXPECT_EQ(fed.uniform(), plain.uniform());
  fed.feed(0.5);
  fed.feed(0.0);
  EXPECT_EQ(fed.uniform(), 0.5);
  fed.feed(0.75);
  EXPECT_EQ(fed.uniform(), 0.0);
  EXPECT_EQ(fed.uniform(), 0.75);
  EXPECT_EQ(fed.uniform(), plain.uniform());
}

}  // namespace
}  // namespace platform
