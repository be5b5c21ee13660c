#include "platform/painter.h"

#include <cstring>
#include <random>

#include "toolkit_fixture.h"

namespace platform {
namespace {

bool samePixels(const Surface& a, const Surface& b) {
  for (int y = 0; y < a.height(); ++y) {
    if (std::memcmp(a.row(y), b.row(y), static_cast<std::size_t>(a.width()) * 3) != 0) return false;
  }
  return true;
}

class Painting : public Toolkit {
 protected:
  Painting() { painter_.paint(screen_, desk_, now_); }

  int roll(int from, int to) { return std::uniform_int_distribution<int>(from, to)(dice_); }
  Color anyColor() {
    const Color colors[] = {kBlack, kYellow, kRed, kGreen, {203, 221, 241}, {225, 238, 253}};
    return colors[roll(0, 5)];
  }

  // One change of the kind that the game or a player makes.
  void change() {
    const int id = roll(0, form_.count() - 1);
    Control& control = form_[id];
    switch (roll(0, 19)) {
      case 0:
        form_.setVisible(id == kHidden ? kPanel : id, roll(0, 2) > 0);
        break;
      case 1:
        control.fore = anyColor();
        break;
      case 2:
        control.back = anyColor();
        break;
      case 3:
        control.text.assign(std::string(static_cast<std::size_t>(roll(0, 9)), 'a'));
        break;
      case 4:
        form_.moveTo(kMap, -64 * roll(0, 4), -32 * roll(0, 4));
        break;
      case 5:
        form_.moveTo(roll(0, 1) ? kPanel : kSave, roll(-50, 600), roll(-50, 400));
        break;
      case 6:
        form_[kLine0].from = {roll(100, 800), roll(50, 600)};
        break;
      case 7:
        form_[kLine1].to = {roll(100, 800), roll(50, 600)};
        break;
      case 8:
        canvas_.surface().fill({500, 100, 30, 200}, anyColor());
        canvas_.pair(roll(0, 990), roll(0, 690), 60, 20, plate_, plate_);
        canvas_.bitBlt(500, 100, 30, 200, canvasPicture_, SRCPAINT);
        canvas_.refresh();
        break;
      case 9:
        if (roll(0, 1)) control.border = !control.border;
        form_[kCheck].checked = roll(0, 1) != 0;
        break;
      case 10:
        form_[kFiles].list->items.resize(static_cast<std::size_t>(roll(0, 20)), "new");
        break;
      case 11:
        desk_.wheel(roll(-2, 2));
        break;
      case 12:
        roll(0, 4) ? desk_.closeBox() : desk_.showBox("Title", control.text);
        break;
      case 13:
        desk_.type("ab");
        break;
      case 14:
        now_ += roll(0, 900), desk_.setNow(now_);
        break;
      case 15:
        form_.show(roll(0, 1) ? kPanel : kSave);
        break;
      default:
        desk_.pointerMoved({roll(0, 799), roll(0, 599)});
        if (roll(0, 3)) desk_.pointerMoved(at(roll(kCombo, kFiles), roll(0, 80), 10));
        roll(0, 3) ? desk_.buttonDown() : desk_.buttonUp();
    }
  }

  std::mt19937 dice_{11};
  std::int64_t now_ = 0;
  Surface canvasPicture_{30, 200};
  Painter painter_{testFont()};
  Surface screen_{800, 600};
};

TEST_F(Painting, WhatIsPaintedStepByStepEqualsAWholePaint) {
  for (int step = 0; step < 300; ++step) {
    for (int i = roll(1, 3); i > 0; --i) change();
    const Surface before = screen_.clone();
    const DamageList& changed = painter_.paint(screen_, desk_, now_);
    Surface outside = screen_.clone();
    for (const Rect& r : changed.rects()) {
      BitBlt(outside, r.left, r.top, r.width, r.height, before, r.left, r.top, SRCCOPY);
    }
    ASSERT_TRUE(samePixels(outside, before)) << "more was painted than told, step " << step;
    Painter fresh(testFont());
    Surface whole(800, 600);
    whole.clear({1, 99, 5});
    fresh.paint(whole, desk_, now_);
    ASSERT_TRUE(samePixels(screen_, whole)) << "step " << step;
  }
}

TEST_F(Painting, NothingChangedPaintsNothing) {
  EXPECT_TRUE(painter_.paint(screen_, desk_, 0).empty());
  form_[kHiddenButton].text.assign("not seen");
  form_[kName].fore = kYellow;
  const DamageList& changed = painter_.paint(screen_, desk_, 0);
  ASSERT_EQ(changed.rects().size(), 1u);
  EXPECT_EQ(changed.rects()[0], form_.onScreen(kName));
  EXPECT_TRUE(painter_.paint(screen_, desk_, 0).empty());
}

TEST_F(Painting, WhatIsDrawnStaysOffTheScreenUntilTheRefresh) {
  const Color before = screen_.pixel(600, 500);
  canvas_.bitBlt(690, 540, 30, 30, canvasPicture_, SRCAND);
  EXPECT_TRUE(painter_.paint(screen_, desk_, 0).empty());
  EXPECT_EQ(screen_.pixel(600, 500), before);
  canvas_.refresh();
  EXPECT_EQ(painter_.paint(screen_, desk_, 0).rects()[0], (Rect{590, 490, 30, 30}));
  EXPECT_EQ(screen_.pixel(600, 500), kBlack);
  EXPECT_TRUE(painter_.paint(screen_, desk_, 0).empty());
}

TEST_F(Painting, LinesLieAboveTheirPictureBelowItsSiblingsAndInsideIt) {
  form_[kLine0].from = {150, 200}, form_[kLine0].to = {1200, 200};
  painter_.paint(screen_, desk_, 0);
  EXPECT_EQ(screen_.pixel(600, 150), kGreen);
  EXPECT_EQ(screen_.pixel(600, 149), kGreen) << "two pixels wide";
  EXPECT_NE(screen_.pixel(600, 148), kGreen);
  EXPECT_NE(screen_.pixel(60, 150), kGreen) << "the panel lies over it";
  form_[kMap].place.width = 600;
  painter_.paint(screen_, desk_, 0);
  EXPECT_NE(screen_.pixel(600, 150), kGreen) << "beyond the picture";
}

}  // namespace
}  // namespace platform
