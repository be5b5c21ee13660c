#include "toolkit_fixture.h"

#include "platform/layout.h"
#include "platform/wrap_columns.h"

namespace platform {
namespace {

using Lines = std::vector<std::string>;

Lines wrapped(std::string_view text, int width) {
  Lines lines;
  while (!text.empty()) lines.emplace_back(takeLine(text, width, testFont(), FontSize::pt11));
  return lines;
}

TEST(Font, PaintsWithinTheWidthItTellsAndWithinItsLine) {
  for (const FontSize size : {FontSize::pt9, FontSize::pt11, FontSize::pt12, FontSize::pt14}) {
    const int width = testFont().width("Qgjpy|AW{}[]&%", size);
    EXPECT_EQ(width, testFont().width("Qgjpy|A", size) + testFont().width("W{}[]&%", size));
    Surface surface(width + 20, lineHeight(size) + 20);
    testFont().draw(surface, surface.bounds(), 10, 10, "Qgjpy|AW{}[]&%", size, kWhite);
    bool painted = false;
    for (int y = 0; y < surface.height(); ++y) {
      for (int x = 0; x < surface.width(); ++x) {
        if (surface.pixel(x, y) == kBlack) continue;
        painted = true;
        EXPECT_TRUE(Rect(9, 10, width + 2, lineHeight(size) + 1).contains({x, y})) << x << ' ' << y;
      }
    }
    EXPECT_TRUE(painted);
  }
}

TEST(Font, TakesAnyBytesAndMoreCharactersThanAreKeptAtATime) {
  Surface surface(200, 20);
  for (const char* text : {"\xFF\xC0\x80\xE2\x82", "\xF0\x9F\x98\x80 \xC3\xA9",
                           "\xED\xA0\x80\xF8\x88\x80\x80\x80", "\x01\n\t"}) {
    testFont().draw(surface, surface.bounds(), 0, 0, text, FontSize::pt11, kWhite);
    EXPECT_GT(testFont().width(text, FontSize::pt11), 0);
  }
  std::vector<int> widths;
  for (int i = 0; i < 3000; ++i) {
    const int code = 0xA1 + i % 1500;
    const char bytes[] = {static_cast<char>(0xC0 | code >> 6),
                          static_cast<char>(0x80 | (code & 63))};
    widths.push_back(testFont().width({bytes, 2}, FontSize::pt9));
  }
  EXPECT_TRUE(std::equal(widths.begin(), widths.begin() + 1500, widths.begin() + 1500));
}

TEST(Wrapping, IsGreedyAtBlanksKeepsLeadingOnesAndCutsWhatIsLongerThanALine) {
  const int width = testFont().width(" one two", FontSize::pt11);
  EXPECT_EQ(wrapped(" one two three", width), (Lines{" one two", "three"}));
  EXPECT_EQ(wrapped(" one two three", width - 1), (Lines{" one", "two", "three"}));
  EXPECT_EQ(wrapped("one\n\n  two", 500), (Lines{"one", "", "  two"}));
  EXPECT_EQ(wrapped(" one two     ", width).size(), 1u);
  const Lines cut = wrapped("abcdefghijklmnopqrstuvwxyz", 50);
  std::string all;
  for (const std::string& line : cut) all += line;
  EXPECT_EQ(all, "abcdefghijklmnopqrstuvwxyz");
  EXPECT_LE(testFont().width(cut[0], FontSize::pt11), 50);
  EXPECT_EQ(wrapped("\xC3\xA9z", 0).size(), 2u) << "always gets on";
}

TEST(Wrapping, ByCharactersBreaksAtBlanksAndCutsLongWordsBetweenCharacters) {
  EXPECT_EQ(wrapColumns("one two three", 7), "one two\nthree");
  EXPECT_EQ(wrapColumns("one two\n three", 6), "one\ntwo\n three");
  EXPECT_EQ(wrapColumns("a /very/long/path", 6), "a\n/very/\nlong/p\nath");
  EXPECT_EQ(wrapColumns("\xC3\xA9\xC3\xA9\xC3\xA9", 2), "\xC3\xA9\xC3\xA9\n\xC3\xA9");
}

}  // namespace
}  // namespace platform
