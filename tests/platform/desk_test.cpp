#include "platform/desk.h"

#include "platform/layout.h"
#include "toolkit_fixture.h"

namespace platform {
namespace {

using FormRules = Toolkit;
using DeskRules = Toolkit;

TEST_F(FormRules, TheTopmostVisibleControlIsHitAndWhatItsParentCutsOffIsNot) {
  EXPECT_EQ(desk_.topmost(at(kButton, 5, 5)), kButton);
  EXPECT_EQ(desk_.topmost(at(kPanelBox, 1, 1)), kPanelBox);
  form_.hide(kSave);
  EXPECT_EQ(desk_.topmost(at(kCutOff, 29, 2)), kCutOff);
  EXPECT_EQ(desk_.topmost(at(kCutOff, 30, 2)), kBack) << "the panel ends before";
  EXPECT_EQ(desk_.topmost(at(kMap, 424, 312)), kMap) << "a line is never hit";
  EXPECT_EQ(desk_.topmost(at(kTag, 1, 1)), kTag);
  form_.show(kHidden);
  EXPECT_EQ(desk_.topmost(at(kButton, 5, 5)), kHiddenButton);
  EXPECT_EQ(desk_.topmost({800, 10}), -1);
}

TEST_F(FormRules, ShowingAFrameBringsItToTheFrontOfItsSiblings) {
  const Point shared{205, 140};
  EXPECT_EQ(desk_.topmost(shared), kSave);
  form_.show(kPanel);
  EXPECT_EQ(desk_.topmost(shared), kPanelBox);
  form_.hide(kSave);
  form_.show(kSave);
  EXPECT_GT(form_[kSave].rank, form_[kPanel].rank);
  EXPECT_EQ(desk_.topmost(shared), kSave);
  form_.show(kName);
  EXPECT_EQ(form_.children(kNoParent).back(), kSave) << "only frames rise";
}

TEST_F(FormRules, NamesAreFoundAndPanelsCentredWithTiesToEven) {
  EXPECT_EQ(form_.find("line", 1), kLine1);
  EXPECT_EQ(form_.find("line"), kLine0);
  EXPECT_EQ(form_.find("line", 2), -1);
  form_[kPanel].place.width = 241, form_[kPanel].place.height = 369;
  form_.centre(kPanel, 700, 700);
  EXPECT_EQ(form_[kPanel].place, (Rect{230, 166, 241, 369}));
}

TEST_F(DeskRules, APressAndAReleaseOverTheSameControlMakeAClick) {
  press({110, 160});
  EXPECT_EQ(desk_.pressed(), kButton);
  desk_.pointerMoved({5, 5});
  EXPECT_EQ(desk_.pressed(), -1);
  desk_.buttonUp();
  EXPECT_EQ(clicksOf(kButton), 0);
  press({110, 160});
  form_.hide(kPanel);
  desk_.buttonUp();
  EXPECT_EQ(clicksOf(kButton), 0);
  form_.show(kPanel);
  click({110, 160});
  EXPECT_EQ(clicksOf(kButton), 1);
  told_.clear();
  desk_.pointerMoved({500, 400});
  press({501, 402});
  EXPECT_EQ(told_,
            (std::vector<std::string>{"move 0 600 450", "move 0 601 452", "down 0 601 452"}));
}

TEST_F(DeskRules, ACheckBoxHasChangedWhenItsClickIsTold) {
  click(at(kCheck, 3, 3));
  EXPECT_TRUE(form_[kCheck].checked);
  click(at(kCheck, 90, 3));
  EXPECT_FALSE(form_[kCheck].checked);
  EXPECT_EQ(clicksOf(kCheck), 2);
}

TEST_F(DeskRules, ADropDownOpensPicksAndClosesAndSwallowsAPressElsewhere) {
  const Point box = at(kCombo, 5, 5);
  click(box);
  ASSERT_EQ(desk_.openList(), kCombo);
  const Rect list = desk_.openListPlace();
  EXPECT_EQ(list.top, form_.onScreen(kCombo).bottom());
  const Point third{list.left + 9, list.top + 1 + 2 * kListRowHeight + 3};
  EXPECT_EQ(desk_.topmost(third), kCombo);
  for (int picks = 1; picks <= 2; ++picks) {
    if (picks == 2) click(box);
    click(third);
    EXPECT_EQ(form_[kCombo].list->selected, 2);
    EXPECT_EQ(form_[kCombo].text, "Track 2");
    EXPECT_EQ(choicesOf(kCombo), picks) << "also the entry that is shown already";
  }
  click(box);
  told_.clear();
  desk_.pointerMoved(at(kButton, 5, 25));
  form_.moveTo(kButton, 150, 40);
  click(at(kButton, 5, 5));
  EXPECT_EQ(desk_.openList(), -1);
  EXPECT_EQ(countOf("down 11 5 5") + clicksOf(kButton) + choicesOf(kCombo), 0);

  press(box);
  desk_.pointerMoved(third);
  desk_.buttonUp();
  EXPECT_EQ(choicesOf(kCombo), 1) << "held down to the entry";
  form_.moveTo(kPanel, 20, 440);
  click(at(kCombo, 5, 5));
  EXPECT_EQ(desk_.openListPlace().bottom(), form_.onScreen(kCombo).top) << "no room below";
  form_.hide(kPanel);
  EXPECT_EQ(desk_.openList(), -1);
}

TEST_F(DeskRules, AFileListSelectsAndScrolls) {
  const ListContent& list = *form_[kFiles].list;
  const auto layout = [&] { return listLayout(form_.onScreen(kFiles), list); };
  click(at(kFiles, 10, 2 + 3 * kListRowHeight));
  EXPECT_EQ(list.selected, 3);
  click({layout().down.left + 3, layout().down.top + 3});
  EXPECT_EQ(list.top, 1);
  click({layout().track.left + 3, layout().track.bottom() - 2});
  EXPECT_EQ(list.top, 1 + layout().fitting);
  desk_.wheel(1);
  EXPECT_EQ(list.top, 1 + layout().fitting - 3);
  press({layout().thumb.left + 3, layout().thumb.top + 4});
  desk_.pointerMoved({0, 599});
  EXPECT_EQ(list.top, 30 - layout().fitting);
  EXPECT_EQ(layout().thumb.bottom(), layout().track.bottom());
  desk_.pointerMoved({0, 0});
  EXPECT_EQ(list.top, 0);
  desk_.buttonUp();
  EXPECT_EQ(list.selected, 3);
  EXPECT_TRUE(desk_.choose(kFiles, "29.sav"));
  EXPECT_EQ(list.selected, 29);
  EXPECT_EQ(list.top, 30 - layout().fitting) << "in sight";
  EXPECT_FALSE(desk_.choose(kFiles, "30.sav"));
  EXPECT_FALSE(desk_.choose(kButton, "Ok"));
  form_[kFiles].list->items.resize(2);
  click(at(kFiles, 10, 2 + 5 * kListRowHeight));
  EXPECT_EQ(list.top, 0);
  EXPECT_EQ(listEntryAt(layout(), list, at(kFiles, 10, 2 + 5 * kListRowHeight)), -1);
}

TEST_F(DeskRules, ATextBoxIsEditedByWholeCharactersUpToItsCapacity) {
  desk_.type("nobody listens");
  click(at(kEntry, 100, 10));
  desk_.type(
      "Stra\xC3\x9F"
      "e\n\xFF");
  EXPECT_EQ(form_[kEntry].text,
            "Stra\xC3\x9F"
            "e");
  desk_.key(Key::left);
  desk_.key(Key::backspace);
  EXPECT_EQ(form_[kEntry].text, "Strae");
  desk_.key(Key::home);
  desk_.key(Key::deleteForward);
  desk_.key(Key::backspace);
  desk_.type("x");
  EXPECT_EQ(form_[kEntry].text, "xtrae");
  const int left = textBoxInside(form_.onScreen(kEntry)).left;
  click({left + testFont().width("xt", FontSize::pt11), at(kEntry, 0, 9).y});
  EXPECT_EQ(desk_.caret(), 2u);
  desk_.key(Key::end);
  desk_.key(Key::deleteForward);
  for (int i = 0; i < 400; ++i) desk_.type("\xC3\xA4");
  EXPECT_EQ(form_[kEntry].text.view().size(), 635u) << "half a character does not go in";
  form_[kEntry].text.assign("\xC3\xA4");
  desk_.key(Key::right);
  desk_.key(Key::backspace);
  EXPECT_TRUE(form_[kEntry].text.empty());
  click(at(kButton, 5, 5));
  desk_.type("z");
  EXPECT_TRUE(form_[kEntry].text.empty());
}

TEST_F(DeskRules, AMessageBoxTakesEverythingAndBoxesQueue) {
  desk_.pointerMoved({110, 160});
  desk_.showBox("Save Error", "Choose");
  told_.clear();
  click({110, 160});
  desk_.type("a");
  EXPECT_TRUE(told_.empty());
  EXPECT_EQ(desk_.topmost({110, 160}), -1);
  for (const char* title : {"2", "3", "4", "5"}) desk_.showBox(title, "");
  const Rect ok = Desk::boxButton(Desk::boxPlace(*desk_.box(), testFont()));
  press({ok.left + 3, ok.top + 3});
  EXPECT_TRUE(desk_.boxButtonDown());
  desk_.pointerMoved({0, 0});
  desk_.buttonUp();
  EXPECT_EQ(desk_.box()->title, "Save Error");
  click({ok.left + 3, ok.top + 3});
  EXPECT_EQ(desk_.box()->title, "2");
  desk_.key(Key::enter);
  desk_.key(Key::escape);
  EXPECT_EQ(desk_.box()->title, "5") << "the newest took the place of the last";
  desk_.closeBox();
  EXPECT_EQ(desk_.box(), nullptr);
  const MessageBox longest{std::string_view(std::string(636, 'W')),
                           std::string_view(std::string(636, '\n'))};
  const Rect place = Desk::boxPlace(longest, testFont());
  EXPECT_EQ(intersection(place, {0, 0, 800, 600}), place);
}

TEST_F(DeskRules, ATooltipComesAfterARestAndGoesWithThePointerOrAPress) {
  desk_.setNow(1000);
  desk_.pointerMoved(at(kName, 5, 5));
  desk_.setNow(1500);
  desk_.pointerMoved(at(kName, 6, 5));
  EXPECT_EQ(desk_.tooltipDue(), 2100);
  EXPECT_EQ(desk_.tooltip(2099), nullptr);
  EXPECT_STREQ(desk_.tooltip(2100), "Opens the menu");
  desk_.setNow(2200);
  desk_.pointerMoved(at(kName, 7, 5));
  EXPECT_NE(desk_.tooltip(2200), nullptr) << "stays while the pointer does";
  EXPECT_EQ(desk_.tooltipDue(), -1);
  desk_.buttonDown();
  EXPECT_EQ(desk_.tooltip(9000), nullptr);
  desk_.buttonUp();
  desk_.pointerMoved({5, 5});
  desk_.setNow(3000);
  desk_.pointerMoved(at(kName, 5, 5));
  form_.show(kHidden);
  EXPECT_EQ(desk_.tooltip(9000), nullptr) << "covered meanwhile";
}

TEST(Desk, AHandlerMayOpenAnotherScreenInTheMiddleOfAnEvent) {
  struct Switcher : FormListener {
    std::unique_ptr<Form> form;
    Desk desk{testFont()};
    Switcher() { replace(); }
    void replace() {
      form = std::make_unique<Form>(kTestTable, nullptr, [](std::string_view) { return nullptr; });
      form->operator[](kCombo).list->items = {"a", "b"};
      desk.open(form.get(), this);
    }
    void onMouseMove(int, int, int) override { replace(); }
    void onMouseDown(int, int, int) override { replace(); }
    void onClick(int) override { replace(); }
    void onChoose(int) override { replace(); }
  } screen;
  for (const ControlDesign& design : kTestTable) {
    const Point at{design.place.left + 25, design.place.top + 25};
    screen.desk.pointerMoved(at);
    screen.desk.buttonDown();
    screen.desk.buttonUp();
  }
  EXPECT_TRUE(screen.desk.choose(kCombo, "b"));
  EXPECT_EQ(screen.desk.pressed(), -1);
}

}  // namespace
}  // namespace platform
