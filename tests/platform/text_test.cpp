#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "platform/layout.h"
#include "platform/utf8.h"
#include "toolkit_fixture.h"

namespace platform {
namespace {

std::vector<std::string> wrapped(std::string_view text, int width) {
  std::vector<std::string> lines;
  while (!text.empty()) lines.emplace_back(takeLine(text, width, testFont(), FontSize::pt11));
  return lines;
}

TEST(Font, PaintsWithinTheWidthItTellsAndWithinItsLine) {
  for (const FontSize size : {FontSize::pt9, FontSize::pt11, FontSize::pt12, FontSize::pt14}) {
    const std::string_view text = "Qgjpy|AW{}[]&%";
    const int width = testFont().width(text, size);
    EXPECT_EQ(width, testFont().width("Qgjpy|A", size) + testFont().width("W{}[]&%", size));
    Surface surface(width + 20, lineHeight(size) + 20);
    testFont().draw(surface, surface.bounds(), 10, 10, text, size, kWhite);
    int first = surface.height(), last = 0;
    for (int y = 0; y < surface.height(); ++y) {
      for (int x = 0; x < surface.width(); ++x) {
        if (surface.pixel(x, y) == kBlack) continue;
        first = std::min(first, y), last = std::max(last, y);
        EXPECT_TRUE(x >= 9 && x <= width + 10) << x;
      }
    }
    EXPECT_GE(first, 10);
    EXPECT_LT(last, 10 + lineHeight(size) + 1);
    EXPECT_GT(last, first + 8);
  }
}

TEST(Font, StaysInsideItsClip) {
  Surface surface(60, 20);
  testFont().draw(surface, {20, 5, 10, 6}, 0, 0, "WWWWWWWW", FontSize::pt12, kWhite);
  bool inside = false;
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 60; ++x) {
      const bool lit = surface.pixel(x, y) != kBlack;
      inside = inside || lit;
      EXPECT_TRUE(!lit || Rect(20, 5, 10, 6).contains({x, y}));
    }
  }
  EXPECT_TRUE(inside);
}

TEST(Font, TakesAnyBytesAndAnyCharacters) {
  Surface surface(200, 20);
  const std::string_view texts[] = {"\xFF\xC0\x80\xE2\x82", "\xF0\x9F\x98\x80 \xC3\xA9",
                                    "\xED\xA0\x80\xF8\x88\x80\x80\x80", "\x01\n\t"};
  for (const std::string_view text : texts) {
    testFont().draw(surface, surface.bounds(), 0, 0, text, FontSize::pt11, kWhite);
    EXPECT_GT(testFont().width(text, FontSize::pt11), 0);
  }
  // More characters than are kept at a time: each still has the width it had at first.
  std::vector<int> widths;
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 1500; ++i) {
      const char32_t code = 0xA1u + static_cast<char32_t>(i);
      const char bytes[] = {static_cast<char>(0xC0 | code >> 6),
                            static_cast<char>(0x80 | (code & 63))};
      const int width = testFont().width({bytes, 2}, FontSize::pt9);
      if (round == 0) widths.push_back(width);
      ASSERT_EQ(width, widths[static_cast<std::size_t>(i)]);
    }
  }
}

TEST(Font, SaysWhichFileIsWrong) {
  std::string error;
  EXPECT_EQ(Font::open("no/such/font.otf", error), nullptr);
  EXPECT_NE(error.find("no/such/font.otf"), std::string::npos);
  const std::string path = testing::TempDir() + "vellmoran_damaged.otf";
  std::ifstream whole(VELLMORAN_BUILD_DIR "/data/font.otf", std::ios::binary);
  std::string start(3000, '\0');
  whole.read(start.data(), 3000);
  std::ofstream(path, std::ios::binary) << start;
  EXPECT_EQ(Font::open(path, error), nullptr);
  EXPECT_NE(error.find(path), std::string::npos);
  std::remove(path.c_str());
}

TEST(Wrapping, IsGreedyAtBlanksAndKeepsLeadingOnes) {
  const int width = testFont().width(" one two", FontSize::pt11);
  EXPECT_EQ(wrapped(" one two three", width), (std::vector<std::string>{" one two", "three"}));
  EXPECT_EQ(wrapped(" one two three", width - 1),
            (std::vector<std::string>{" one", "two", "three"}));
  EXPECT_EQ(wrapped("one\n\n  two", 500), (std::vector<std::string>{"one", "", "  two"}));
  EXPECT_EQ(wrapped("one two     ", testFont().width("one two", FontSize::pt11)).size(), 1u);
}

TEST(Wrapping, CutsAWordThatIsLongerThanALineAndAlwaysGetsOn) {
  std::string all;
  for (const std::string& line : wrapped("abcdefghijklmnopqrstuvwxyz", 50)) {
    EXPECT_LE(testFont().width(line, FontSize::pt11), 50);
    all += line;
  }
  EXPECT_EQ(all, "abcdefghijklmnopqrstuvwxyz");
  EXPECT_EQ(wrapped("\xC3\xA9z", 0).size(), 2u);
  EXPECT_EQ(wrapped("  ab", 1).size(), 2u + 1u);
}

TEST(Utf8, StepsOverWholeCharactersBothWays) {
  const std::string_view text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\x80z";
  const std::size_t stops[] = {0, 1, 3, 6, 10, 11, 12};
  for (std::size_t i = 0; i + 1 < std::size(stops); ++i) {
    EXPECT_EQ(nextCharacter(text, stops[i]), stops[i + 1]);
    EXPECT_EQ(previousCharacter(text, stops[i + 1]), stops[i]);
  }
  EXPECT_EQ(nextCharacter(text, 12), 12u);
  EXPECT_EQ(previousCharacter(text, 0), 0u);
}

}  // namespace
}  // namespace platform
