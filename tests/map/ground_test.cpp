#include "map/ground.h"

#include <gtest/gtest.h>

#include <string_view>

#include "map/made_up_city.h"

namespace map {
namespace {

// What is rolled and what it becomes: '#' the second variant, 'O' the third.
constexpr std::string_view kMeadow[][2] = {
    // A full patch; a wider one with three dots in a row, of which the first wipes the second.
    {"###.#####", "###.#####"},
    {"###.#####", "#O#.#O#O#"},
    {"###.#####", "###.#####"},
    {".........", "........."},
    // The third of the row has six neighbours, but only five once the second has turned.
    {"....####.", "....####."},
    {"....####.", "....#O##."},
    {"....#####", "....#####"},
    {".........", "........."},
    // Six neighbours make a dot that fills its gaps, five do not.
    {"#.#.#.#..", "###.#.#.."},
    {"###.###..", "#O#.###.."},
    {"#.#.#....", "###.#...."},
};

TEST(Ground, ClumpsAndClearsInPlace) {
  MadeUpCity city;
  city.values.gMapSize = 28;
  platform::Random random(nullptr);
  constexpr int kRows = std::size(kMeadow);
  eachPixel(31, 31, [&](int x, int y) {
    const bool inside = x >= 10 && x < 19 && y >= 10 && y < 10 + kRows;
    random.feed(inside && kMeadow[y - 10][0][x - 10u] == '#' ? 0.5 : 0.4999);
  });
  readmap(city.game, city.values, random);
  for (int y = 0; y < kRows; ++y) {
    std::string row;
    for (int x = 0; x < 9; ++x) {
      const int image = city.game.tileImage(x + 10, y + 10);
      row += image == 29 ? 'O' : image == 28 ? '#' : '.';
    }
    EXPECT_EQ(row, kMeadow[y][1]) << "row " << y;
  }
}

TEST(Ground, RingsLieAroundThePlaySquareAndTheVoidWins) {
  for (const int size : {4, 12, 18, 28}) {
    MadeUpCity city;
    city.values.gMapSize = size;
    platform::Random random(nullptr);
    for (int i = 0; i < 31 * 31; ++i) random.feed(0);
    random.feed(0.125);
    readmap(city.game, city.values, random);
    EXPECT_EQ(random.uniform(), 0.125) << "one draw for each cell";
    eachPixel(31, 31, [&](int x, int y) {
      const int out = std::max(std::abs(x - 15), std::abs(y - 15)) - size / 2;
      const int image = out > 0 ? 20 : out == 0 ? 29 : out == -1 ? 28 : 0;
      ASSERT_EQ(city.game.tileImage(x, y), image) << size << ": " << x << ", " << y;
    });
  }
}

TEST(Ground, OnlyTheWalledTownSetsTallFlagsAndNoneIsCleared) {
  for (const int mission : {8, 9, 10}) {
    MadeUpCity city;
    city.values.gMission = mission;
    city.values.gMapSize = 12;
    city.game.cellTall(3, 3) = 1;
    platform::Random random(nullptr);
    readmap(city.game, city.values, random);
    int tall = 0;
    eachPixel(31, 31, [&](int x, int y) { tall += city.game.cellTall(x, y); });
    EXPECT_EQ(tall, mission > 8 ? 1 + 27 : 1);
    const auto image = [&](int x, int y) { return city.game.tileImage(x, y); };
    EXPECT_EQ(image(9, 22) + image(22, 21), mission > 8 ? 59 + 60 : 20 + 20);
    EXPECT_EQ(image(15, 22) + image(22, 22) + image(22, 15), mission > 8 ? 3 * 61 : 3 * 20);
    EXPECT_EQ(city.game.tileImage(8, 22), 20);
  }
}

}  // namespace
}  // namespace map
