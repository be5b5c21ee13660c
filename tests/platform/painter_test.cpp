

#include "platform/painter.h"
#include "pixels.h"
#include "platform/layout.h"
#include "platform/wrap_columns.h"
#include "toolkit_fixture.h"

namespace platform {
namespace {

class Painting : public Toolkit {
 protected:
  Painting() { paint(); }

  std::vector<Rect> paint() {
    const auto rects = painter_.paint(screen_, desk_, now_).rects();
    return {rects.begin(), rects.end()};
  }
  int rolled(int from, int to) { return roll(dice_, from, to); }
  Point anywhere() { return {rolled(-50, 850), rolled(-50, 650)}; }
  Color anyColor() {
    const Color colors[] = {kBlack, kYellow, kRed, kGreen, {203, 221, 241}, {225, 238, 253}};
    return colors[rolled(0, 5)];
  }

  // One change of the kind that the game or a player makes.
  void change() {
    const int id = rolled(0, form_.count() - 1);
    const int panel = rolled(0, 1) != 0 ? kPanel : kSave;
    Control& control = form_[id];
    const std::function<void()> changes[] = {
        [&] { form_.setVisible(id == kHidden ? kPanel : id, rolled(0, 2) > 0); },
        [&] { control.fore = anyColor(); },
        [&] { control.back = anyColor(); },
        [&] { control.text.assign(rolled(0, 1) != 0 ? "" : "aaaa aaaa"); },
        [&] { form_.moveTo(kMap, -64 * rolled(0, 4), -32 * rolled(0, 4)); },
        [&] { form_.moveTo(panel, rolled(-50, 600), rolled(-50, 400)); },
        [&] { form_[kLine0].from = anywhere(); },
        [&] {
          canvasPicture_.clear(anyColor());
          canvas_.pair(rolled(0, 990), rolled(0, 690), 60, 20, plate_, plate_);
          canvas_.bitBlt(500, 100, 30, 200, canvasPicture_, rolled(0, 1) != 0 ? SRCPAINT : SRCAND);
          canvas_.refresh();
        },
        [&] { control.border = !control.border; },
        [&] { form_[kTag].image = rolled(0, 1) != 0 ? &plate_ : nullptr; },
        [&] { form_[kName].held = !form_[kName].held; },
        [&] { form_[kCheck].checked = !form_[kCheck].checked; },
        [&] { form_[kFiles].list->items.resize(static_cast<std::size_t>(rolled(0, 20)), "new"); },
        [&] { desk_.wheel(rolled(-2, 2)); },
        [&] { rolled(0, 4) != 0 ? desk_.closeBox() : desk_.showBox("Title", control.text); },
        [&] { desk_.type("ab"); },
        [&] {
          desk_.key(static_cast<Key>(rolled(0, 11)), {rolled(0, 1) != 0, false});
        },
        [&] { now_ += rolled(0, 900), desk_.setNow(now_); },
        [&] { form_.show(panel); },
        [&] {
          desk_.pointerMoved(anywhere());
          if (rolled(0, 3) != 0) desk_.pointerMoved(at(rolled(kCombo, kFiles), rolled(0, 80), 10));
          rolled(0, 3) != 0 ? desk_.buttonDown() : desk_.buttonUp();
        },
    };
    changes[std::min<std::size_t>(dice_() % 25, std::size(changes) - 1)]();
  }

  Dice dice_{11};
  std::int64_t now_ = 0;
  Surface canvasPicture_{30, 200};
  Painter painter_{testFont(), testSkin()};
  Surface screen_{800, 600};
};

TEST_F(Painting, WhatIsPaintedStepByStepEqualsAWholePaint) {
  for (int step = 0; step < 300; ++step) {
    for (int i = rolled(1, 3); i > 0; --i) change();
    const Surface before = screen_.clone();
    const std::vector<Rect> changed = paint();
    Surface outside = screen_.clone();
    for (const Rect& r : changed) {
      BitBlt(outside, r.left, r.top, r.width, r.height, before, r.left, r.top, SRCCOPY);
    }
    ASSERT_TRUE(same(outside, before)) << "more was painted than reported, step " << step;
    Painter fresh(testFont(), testSkin());
    Surface whole(800, 600);
    whole.clear({1, 99, 5});
    fresh.paint(whole, desk_, now_);
    ASSERT_TRUE(same(screen_, whole)) << "step " << step;
  }
}

TEST_F(Painting, OnlyWhatChangedIsPaintedDrawingWaitsForTheRefreshAndLinesAreAboveIt) {
  EXPECT_TRUE(paint().empty());
  form_[kHiddenButton].text.assign("not seen");
  form_[kName].fore = kYellow;
  EXPECT_EQ(paint(), std::vector<Rect>{kTestTable[kName].faceBox}) << "the key is larger";
  canvas_.bitBlt(690, 540, 30, 30, canvasPicture_, SRCAND);
  EXPECT_TRUE(paint().empty());
  EXPECT_NE(screen_.pixel(600, 500), kBlack);
  canvas_.refresh();
  EXPECT_EQ(paint(), (std::vector<Rect>{{590, 490, 30, 30}}));
  EXPECT_EQ(screen_.pixel(600, 500), kBlack);
  canvas_.bitBlt(690, 540, 30, 30, canvasPicture_, SRCAND);
  canvas_.refresh();
  EXPECT_TRUE(paint().empty()) << "it was drawn already";
  form_[kLine0].from = {150, 200}, form_[kLine0].to = {1200, 200};
  paint();
  EXPECT_EQ(screen_.pixel(600, 149), kGreen) << "two pixels wide";
  EXPECT_EQ(screen_.pixel(600, 150), kGreen);
  EXPECT_NE(screen_.pixel(600, 148), kGreen);
  EXPECT_NE(screen_.pixel(60, 150), kGreen) << "the panel is over it";
  form_[kMap].place.width = 600;
  paint();
  EXPECT_NE(screen_.pixel(600, 150), kGreen) << "beyond the picture";
}

using Lines = std::vector<std::string>;

Lines wrapped(std::string_view text, int width) {
  Lines lines;
  while (!text.empty()) lines.emplace_back(takeLine(text, width, testFont(), FontSize::pt11));
  return lines;
}

TEST(Font, PaintsWithinItsWidthAndWithinItsLine) {
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
