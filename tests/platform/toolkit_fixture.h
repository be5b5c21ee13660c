// A small screen with every kind of control, for the tests of the toolkit.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/desk.h"

namespace platform {

inline Font& testFont() {
  static std::string error;
  static const std::unique_ptr<Font> font = Font::open(VELLMORAN_BUILD_DIR "/data/font.otf", error);
  if (font == nullptr) {
    std::fputs(error.c_str(), stderr);
    std::abort();
  }
  return *font;
}

enum : int {
  kMap,
  kLine0,
  kLine1,
  kTag,
  kBack,
  kPlate,
  kName,
  kPanel,
  kPanelBox,
  kCombo,
  kCheck,
  kButton,
  kCutOff,
  kSave,
  kEntry,
  kFiles,
  kNote,
  kHidden,
  kHiddenButton,
};

inline constexpr Color kPanelColor{192, 192, 255};
inline const ControlDesign kTestTable[] = {
    {.name = "map", .kind = ControlKind::picture, .place = {-100, -50, 1000, 700}},
    {.name = "line", .index = 0, .kind = ControlKind::line, .parent = kMap, .fore = kGreen},
    {.name = "line", .index = 1, .kind = ControlKind::line, .parent = kMap, .fore = kRed},
    {.name = "tag", .parent = kMap, .place = {300, 500, 80, 20}, .text = "Tag"},
    {.name = "back",
     .kind = ControlKind::box,
     .place = {10, 10, 300, 300},
     .back = {1, 2, 3},
     .opaque = true,
     .border = true},
    {.name = "plate", .kind = ControlKind::image, .place = {640, 20, 120, 40}, .image = "plate"},
    {.name = "name",
     .place = {650, 30, 100, 20},
     .text = "GAME MENU",
     .align = Align::centre,
     .tooltip = "Opens the menu"},
    {.name = "panel",
     .kind = ControlKind::frame,
     .place = {20, 20, 260, 200},
     .text = "PANEL",
     .font = FontSize::pt14,
     .back = kPanelColor,
     .opaque = true,
     .border = true,
     .heading = Heading::title},
    {.name = "panelBox", .kind = ControlKind::box, .parent = kPanel, .place = {4, 30, 250, 150}},
    {.name = "combo", .kind = ControlKind::dropDown, .parent = kPanel, .place = {20, 40, 100, 27}},
    {.name = "check",
     .kind = ControlKind::checkBox,
     .parent = kPanel,
     .place = {20, 80, 100, 20},
     .text = "Check"},
    {.name = "button",
     .kind = ControlKind::button,
     .parent = kPanel,
     .place = {20, 120, 80, 30},
     .text = "Ok"},
    {.name = "cutOff",
     .kind = ControlKind::button,
     .parent = kPanel,
     .place = {230, 150, 80, 30},
     .text = "Beyond"},
    {.name = "save",
     .kind = ControlKind::frame,
     .place = {200, 100, 250, 300},
     .text = "Save",
     .font = FontSize::pt9,
     .back = kPanelColor,
     .opaque = true,
     .border = true,
     .heading = Heading::group},
    {.name = "entry", .kind = ControlKind::textBox, .parent = kSave, .place = {20, 20, 137, 27}},
    {.name = "files", .kind = ControlKind::fileList, .parent = kSave, .place = {20, 60, 177, 158}},
    {.name = "note",
     .parent = kSave,
     .place = {20, 230, 120, 60},
     .text = " Two thousand people in one year",
     .border = true},
    {.name = "hidden", .kind = ControlKind::frame, .place = {0, 0, 800, 600}, .visible = false},
    {.name = "hiddenButton",
     .kind = ControlKind::button,
     .parent = kHidden,
     .place = {0, 0, 800, 600}},
};

/// The screen on a desk, with a record of what the screen was told.
class Toolkit : public testing::Test, protected FormListener {
 protected:
  Toolkit()
      : canvas_(1000, 700),
        plate_(60, 20),
        form_(kTestTable, nullptr, [this](std::string_view) { return &plate_; }),
        desk_(testFont()) {
    plate_.clear({140, 179, 242});
    canvas_.surface().clear({90, 140, 70});
    form_[kMap].canvas = &canvas_;
    form_[kLine0].from = {400, 300}, form_[kLine0].to = {430, 315};
    form_[kLine1].from = {400, 300}, form_[kLine1].to = {395, 360};
    for (int i = 0; i < 7; ++i) form_[kCombo].list->items.push_back("Track " + std::to_string(i));
    for (int i = 0; i < 30; ++i) form_[kFiles].list->items.push_back(std::to_string(i) + ".sav");
    desk_.open(&form_, this);
  }

  void onMouseMove(int id, int x, int y) override { note("move", id, x, y); }
  void onMouseDown(int id, int x, int y) override { note("down", id, x, y); }
  void onClick(int id) override { told_.push_back("click " + std::to_string(id)); }
  void onChoose(int id) override { told_.push_back("choose " + std::to_string(id)); }
  void note(const char* what, int id, int x, int y) {
    told_.push_back(std::string(what) + ' ' + std::to_string(id) + ' ' + std::to_string(x) + ' ' +
                    std::to_string(y));
  }

  void press(Point at) { desk_.pointerMoved(at), desk_.buttonDown(); }
  void click(Point at) { press(at), desk_.buttonUp(); }
  Point at(int id, int x, int y) {
    return {form_.onScreen(id).left + x, form_.onScreen(id).top + y};
  }
  int clicksOf(int id) { return countOf("click " + std::to_string(id)); }
  int choicesOf(int id) { return countOf("choose " + std::to_string(id)); }
  int countOf(const std::string& line) {
    return static_cast<int>(std::count(told_.begin(), told_.end(), line));
  }

  Canvas canvas_;
  Surface plate_;
  Form form_;
  Desk desk_;
  std::vector<std::string> told_;
};

}  // namespace platform
