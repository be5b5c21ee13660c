#include "platform/desk.h"

#include "platform/layout.h"
#include "platform/natural_order.h"
#include "toolkit_fixture.h"

namespace platform {
namespace {

using FormRules = Toolkit;
using DeskRules = Toolkit;

TEST_F(FormRules, TheTopmostVisibleControlIsHitAndShowingAFrameBringsItToTheFront) {
  const Point shared{205, 140};
  EXPECT_EQ(desk_.topmost(shared), kSave);
  form_.show(kPanel);
  EXPECT_EQ(desk_.topmost(shared), kPanelBox);
  form_.hide(kSave);
  EXPECT_EQ(desk_.topmost(at(kButton, 5, 5)), kButton);
  EXPECT_EQ(desk_.topmost(at(kCutOff, 29, 2)), kCutOff);
  EXPECT_EQ(desk_.topmost(at(kCutOff, 30, 2)), kBack) << "the panel ends before";
  EXPECT_EQ(desk_.topmost(at(kMap, 424, 312)), kMap) << "a line is never hit";
  form_.show(kSave);
  EXPECT_EQ(desk_.topmost(shared), kSave);
  form_.show(kHidden);
  EXPECT_EQ(desk_.topmost(shared), kHiddenButton);
  form_[kPanel].place.width = 241, form_[kPanel].place.height = 369;
  form_.centre(kPanel, 700, 700);
  EXPECT_EQ(form_[kPanel].place, (Rect{230, 166, 241, 369})) << "ties to even";
}

TEST_F(DeskRules, APressAndAReleaseOverTheSameControlMakeAClick) {
  const Point button = at(kButton, 10, 10);
  press(button);
  EXPECT_EQ(desk_.pressed(), kButton);
  desk_.pointerMoved({5, 5});
  desk_.buttonUp();
  press(button);
  form_.hide(kPanel);
  desk_.buttonUp();
  EXPECT_EQ(count("click", kButton), 0);
  form_.show(kPanel);
  click(button);
  EXPECT_EQ(count("click", kButton), 1);
  handler_ = [&] { EXPECT_EQ(form_[kCheck].checked, count("click", kCheck) == 1); };
  for (const int x : {3, 90}) click(at(kCheck, x, 3));
  EXPECT_EQ(count("click", kCheck), 2);
  handler_ = nullptr;
  press({501, 402});
  EXPECT_EQ(told_.back(), (Told{"down", kMap, 601, 452}));
}

TEST_F(DeskRules, AButtonMovesThePointerOnlyToAnotherPoint) {
  desk_.pointerMoved({500, 400});
  for (int n = 0; n < 2; ++n) click({500, 400});
  EXPECT_EQ(count("move", kMap, 600, 450), 1);
  click({501, 402});
  EXPECT_EQ(count("move", kMap, 601, 452), 1);
  EXPECT_EQ(count("click", kMap), 3);
}

TEST_F(DeskRules, ADropDownOpensPicksAndClosesAndSwallowsAPressElsewhere) {
  const Point box = at(kCombo, 5, 5);
  click(box);
  const Rect list = desk_.openListPlace();
  EXPECT_EQ(list.top, form_.onScreen(kCombo).bottom());
  const Point third{list.left + 9, list.top + 1 + 2 * kListRowHeight + 3};
  click(third);
  EXPECT_EQ(form_[kCombo].text, "Track 2");
  press(box);
  desk_.pointerMoved(third);
  desk_.buttonUp();
  EXPECT_EQ(count("choose", kCombo), 2) << "held down to the entry that is shown already";
  click(box);
  form_.moveTo(kButton, 150, 40);
  click(at(kButton, 5, 5));
  EXPECT_EQ(desk_.openList(), -1);
  EXPECT_EQ(count("down", kButton, 5, 5) + count("click", kButton), 0);
  form_.moveTo(kPanel, 20, 440);
  click(at(kCombo, 5, 5));
  EXPECT_EQ(desk_.openListPlace().bottom(), form_.onScreen(kCombo).top) << "no room below";
  form_.hide(kPanel);
  EXPECT_EQ(desk_.openList(), -1);
}

TEST_F(DeskRules, AFileListSelectsAndScrolls) {
  const ListContent& list = *form_[kFiles].list;
  const auto layout = [&] { return listLayout(form_.onScreen(kFiles), list); };
  const int lowestTop = 30 - layout().fitting;
  click(at(kFiles, 10, 2 + 3 * kListRowHeight));
  click({layout().down.left + 3, layout().down.top + 3});
  EXPECT_EQ(list.top, 1);
  click({layout().track.left + 3, layout().track.bottom() - 2});
  EXPECT_EQ(list.top, 1 + layout().fitting);
  desk_.wheel(1);
  EXPECT_EQ(list.top, layout().fitting - 2);
  press({layout().thumb.left + 3, layout().thumb.top + 4});
  desk_.pointerMoved({0, 599});
  EXPECT_EQ(list.top, lowestTop);
  desk_.pointerMoved({0, 0});
  EXPECT_EQ(list.top, 0);
  desk_.buttonUp();
  EXPECT_EQ(list.selected, 3);
  EXPECT_TRUE(desk_.choose(kFiles, "29.sav"));
  EXPECT_EQ(list.top, lowestTop) << "in sight";
  EXPECT_FALSE(desk_.choose(kFiles, "30.sav") || desk_.choose(kButton, "Ok"));
  form_[kFiles].list->items.resize(2);
  click(at(kFiles, 10, 2 + 5 * kListRowHeight));
  EXPECT_EQ(listEntryAt(layout(), list, at(kFiles, 10, 2 + 5 * kListRowHeight)), -1);
}

TEST_F(DeskRules, ATextBoxIsEditedByWholeCharactersUpToItsCapacity) {
  const Text& text = form_[kEntry].text;
  click(at(kEntry, 100, 10));
  desk_.type("Str\xE2\x82\xAC\n\xF0\x9F\x98\x80\xFFu");
  EXPECT_EQ(text, "Str\xE2\x82\xAC\xF0\x9F\x98\x80u");
  for (const Key key : {Key::left, Key::backspace, Key::left, Key::deleteForward}) desk_.key(key);
  EXPECT_EQ(text, "Stru");
  for (const Key key : {Key::home, Key::deleteForward, Key::backspace}) desk_.key(key);
  desk_.type("x");
  EXPECT_EQ(text, "xtru");
  const int left = textBoxInside(form_.onScreen(kEntry)).left;
  click({left + testFont().width("xt", FontSize::pt11), at(kEntry, 0, 9).y});
  EXPECT_EQ(desk_.selection().caret, 2u);
  desk_.key(Key::end);
  for (int i = 0; i < 400; ++i) desk_.type("\xC3\xA4");
  desk_.key(Key::backspace);
  desk_.type("x\xC3\xA4");
  EXPECT_EQ(text.view().size(), 635u) << "half a character does not go in";
  form_[kEntry].text.assign("\xC3\xA4");
  desk_.key(Key::backspace);
  click(at(kButton, 5, 5));
  desk_.type("z");
  EXPECT_TRUE(text.empty());
}

TEST_F(DeskRules, ATextBoxSelectsByKeysAndPointerAndGoesThroughTheClipboard) {
  const Text& text = form_[kEntry].text;
  const auto key = [this](Key struck, const char* held = "") {
    const std::string_view with = held;
    desk_.key(struck, {with.find('s') != with.npos, with.find('c') != with.npos});
  };
  desk_.focusOn(kEntry, Desk::Caret::atEnd);
  desk_.type("old g\xC3\xB6t-2");
  key(Key::left, "c"), key(Key::left, "cs");
  EXPECT_EQ(desk_.selection().of(text), "g\xC3\xB6t-");
  key(Key::cut), key(Key::home), key(Key::paste), key(Key::end), key(Key::paste);
  EXPECT_EQ(text, "g\xC3\xB6t-old 2g\xC3\xB6t-");
  key(Key::left, "s"), key(Key::left), key(Key::backspace);
  EXPECT_EQ(text, "g\xC3\xB6t-old 2g\xC3\xB6-")
      << "a move without shift goes to the end of what is selected";
  key(Key::home), key(Key::deleteForward, "c"), key(Key::right, "cs");
  EXPECT_EQ(desk_.selection().of(text), "-old");
  key(Key::copy), key(Key::selectAll), key(Key::paste);
  EXPECT_EQ(text, "-old");
  form_[kEntry].text.assign("n");
  EXPECT_EQ(desk_.selection(), (Selection{1, 1})) << "the screen wrote another text";

  form_[kEntry].text.assign("one two");
  const auto before = [this](std::string_view part) {
    return at(kEntry, 4 + testFont().width(part, FontSize::pt11), 9);
  };
  click(before("one t"));
  EXPECT_TRUE(desk_.selection().empty());
  click(before("one t"));
  EXPECT_EQ(desk_.selection().of(text), "two") << "a double-click";
  desk_.setNow(5000);
  press(before("one"));
  desk_.pointerMoved(before("o"));
  desk_.buttonUp();
  desk_.pointerMoved(before("one two"));
  EXPECT_EQ(desk_.selection(), (Selection{1, 3}));
  desk_.buttonDown({.shift = true});
  EXPECT_EQ(desk_.selection(), (Selection{7, 3}));

  // A long text moves only as far as its caret needs.
  desk_.focusOn(kEntry, Desk::Caret::atEnd);
  desk_.type(std::string(40, 'm'));
  const int shift = desk_.textShift();
  EXPECT_GT(shift, 0);
  key(Key::left);
  EXPECT_EQ(desk_.textShift(), shift);
  key(Key::home);
  EXPECT_EQ(desk_.textShift(), 0);
}

TEST_F(DeskRules, TwoPressesOnANameInTimeAreADoubleClick) {
  const Point first = at(kFiles, 9, 9), second = at(kFiles, 9, 9 + kListRowHeight);
  desk_.setNow(1000);
  for (const Point& name : {first, second, second}) click(name);
  EXPECT_EQ(count("double", kFiles), 1);
  click(second);
  EXPECT_EQ(count("double", kFiles), 1) << "the third is a first one again";
  desk_.setNow(1001 + kDoubleClick);
  click(second);
  const ListLayout layout = listLayout(form_.onScreen(kFiles), *form_[kFiles].list);
  for (int i = 0; i < 4; ++i) click({layout.down.left + 3, layout.down.top + 3});
  EXPECT_EQ(count("double", kFiles), 1);
}

TEST(NaturalOrder, PutsNamesWherePeopleLookForThem) {
  const std::vector<std::string> sorted{
      "",    "1",   "Arbor 2", "arbor 10", "\xC3\x84rger 3", "Art",
      "Zoo", "zoo", "zoo 01",  "zoo 1",    "zoo 1a",         "\xE2\x82\xAC"};
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    for (std::size_t j = 0; j < sorted.size(); ++j) {
      EXPECT_EQ(comesBefore(sorted[i], sorted[j]), i < j) << sorted[i] << " and " << sorted[j];
    }
  }
}

TEST_F(DeskRules, AMessageBoxTakesEverythingAndBoxesQueue) {
  for (const char* title : {"1", "2", "3", "4", "5"}) desk_.showBox(title, "");
  click(at(kButton, 5, 5));
  EXPECT_TRUE(told_.empty());
  const Rect ok = Desk::boxButton(Desk::boxPlace(*desk_.box(), testFont()));
  press({ok.left + 3, ok.top + 3});
  desk_.pointerMoved({0, 0});
  desk_.buttonUp();
  EXPECT_EQ(desk_.box()->title, "1");
  click({ok.left + 3, ok.top + 3});
  EXPECT_EQ(desk_.box()->title, "2");
  desk_.key(Key::enter);
  desk_.key(Key::escape);
  EXPECT_EQ(desk_.box()->title, "5") << "the newest took the place of the last";
  desk_.closeBox();
  EXPECT_EQ(desk_.box(), nullptr);
  const std::string wide(636, 'W'), high(636, '\n');
  const Rect place = Desk::boxPlace({std::string_view(wide), std::string_view(high)}, testFont());
  EXPECT_EQ(intersection(place, {0, 0, 800, 600}), place);
}

TEST_F(DeskRules, ATooltipComesAfterARestAndGoesWithThePointerOrAPress) {
  const auto moveAt = [&](std::int64_t now, Point to) {
    desk_.setNow(now), desk_.pointerMoved(to);
  };
  moveAt(1000, at(kName, 5, 5));
  moveAt(1500, at(kName, 6, 5));
  EXPECT_EQ(desk_.tooltipDue(), 2100);
  EXPECT_EQ(desk_.tooltip(2099), "");
  EXPECT_EQ(desk_.tooltip(2100), "Opens the menu");
  moveAt(2200, at(kName, 7, 5));
  EXPECT_NE(desk_.tooltip(2200), "") << "stays while the pointer does";
  click(at(kName, 7, 5));
  EXPECT_EQ(desk_.tooltip(9000), "");
  moveAt(3000, {5, 5});
  moveAt(3000, at(kName, 5, 5));
  desk_.pointerLeft();
  EXPECT_EQ(desk_.tooltip(9000), "") << "the pointer is outside";
  moveAt(3000, at(kName, 5, 5));
  form_.show(kHidden);
  EXPECT_EQ(desk_.tooltip(9000), "") << "covered meanwhile";
}

TEST_F(DeskRules, ANameThatIsCutOffInItsListIsShownWholeInATooltip) {
  const std::string longName(40, 'W');
  std::vector<std::string>& names = form_[kFiles].list->items;
  names[1] = names[4] = longName;
  desk_.setNow(1000);
  desk_.pointerMoved(at(kFiles, 9, 9));
  EXPECT_EQ(desk_.tooltip(5000), "");
  desk_.pointerMoved(at(kFiles, 9, 9 + kListRowHeight));
  EXPECT_EQ(desk_.tooltip(1599), "");
  EXPECT_EQ(desk_.tooltip(1600), longName);
  EXPECT_EQ(desk_.tooltipOwner().top, form_.onScreen(kFiles).top + 2 + kListRowHeight);
  desk_.setNow(2000);
  desk_.wheel(-1);
  EXPECT_EQ(desk_.tooltip(2599), "") << "another name has come under the pointer";
  EXPECT_EQ(desk_.tooltip(2600), longName);
  names.clear();
  EXPECT_EQ(desk_.tooltip(2600), "");

  const std::string_view shown = shortened(longName, 100, testFont(), FontSize::pt9);
  const auto width = [](std::string_view text) { return testFont().width(text, FontSize::pt9); };
  EXPECT_LE(width(shown) + width(kEllipsis), 100);
  EXPECT_GT(width(shown) + width(kEllipsis), 100 - width("W"));
  EXPECT_EQ(shortened("a b", 100, testFont(), FontSize::pt9), "a b");
}

}  // namespace
}  // namespace platform
