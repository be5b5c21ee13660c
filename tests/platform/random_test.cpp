#include "platform/random.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "platform/virtual/virtual_clock.h"

namespace platform {
namespace {

// A clock on which no time passes between any two draws.
struct StoppedClock : Clock {
  std::int64_t milliseconds() override { return 0; }
  std::uint64_t ticks() override { return 123456789; }
};

// Counts must not deviate from equal shares by more than five standard deviations of chi-square.
void expectEqualShares(const std::vector<int>& counts, double draws) {
  const double cells = static_cast<double>(counts.size()), share = draws / cells;
  double chi = 0;
  for (const int count : counts) chi += (count - share) * (count - share) / share;
  EXPECT_LT(std::abs(chi - (cells - 1)), 5 * std::sqrt(2 * (cells - 1)));
}

// Draws from the two in turn: what follows each other must have nothing in common.
void expectUniformAndIndependent(Random& one, Random& other) {
  std::vector<int> triples(20 * 20 * 4), lowBits(64);
  double before = 0, beforeThat = 0;
  for (int i = 0; i < 100000; ++i) {
    const double u = i % 2 == 0 ? one.uniform() : other.uniform();
    ASSERT_TRUE(u >= 0.0 && u < 1.0) << u;
    const double triple = std::floor(u * 20) * 80 + std::floor(before * 20) * 4 + beforeThat * 4;
    ++triples[static_cast<std::size_t>(triple)];
    ++lowBits[static_cast<std::size_t>(u * 0x1p53) & 63];
    beforeThat = before;
    before = u;
  }
  expectEqualShares(triples, 100000);
  expectEqualShares(lowBits, 100000);
}

TEST(Random, DrawsAreUniformAndIndependentHoweverTheClockRuns) {
  StoppedClock stopped;
  VirtualClock counting;
  Random atOneMoment(&stopped), oneTickApart(&counting), first(nullptr, 1), next(nullptr, 2);
  for (Random* random : {&atOneMoment, &oneTickApart, &first}) {
    expectUniformAndIndependent(*random, *random);
  }
  expectUniformAndIndependent(first, next);
}

TEST(Random, ASeedRepeatsAndFedDrawsComeFirstWithoutMovingTheStream) {
  VirtualClock clock;
  Random fed(&clock), plain(&clock);
  EXPECT_NE(fed.uniform(), plain.uniform());
  fed.feed(0.25);
  fed.seed(7);
  plain.seed(7);
  EXPECT_EQ(fed.uniform(), plain.uniform());
  for (const double draw : {0.5, 0.0}) fed.feed(draw);
  for (const double draw : {0.5, 0.0}) EXPECT_EQ(fed.uniform(), draw);
  EXPECT_EQ(fed.uniform(), plain.uniform());
}

}  // namespace
}  // namespace platform
