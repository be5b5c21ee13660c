// A small screen with every kind of control, for the tests of the toolkit.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "platform/desk.h"
#include "platform/skin.h"

namespace platform {

inline Font& testFont() {
  static std::string error;
  static const std::unique_ptr<Font> font = Font::open(VELLMORAN_BUILD_DIR "/data/font.otf", error);
  return font != nullptr ? *font : (std::fputs(error.c_str(), stderr), std::abort(), *font);
}

inline const Skin& testSkin() {
  static Skin skin;
  static std::string error;
  static const bool loaded = skin.load(VELLMORAN_BUILD_DIR "/data/pictures/panel", error, 1);
  return loaded ? skin : (std::fputs(error.c_str(), stderr), std::abort(), skin);
}

enum : int { kMap, kLine0, kLine1, kTag, kBack, kPlate, kName };
enum : int { kPanel = kName + 1, kPanelBox, kCombo, kCheck, kButton, kCutOff, kSave, kEntry };
enum : int { kFiles = kEntry + 1, kNote, kHidden, kHiddenButton };

constexpr ControlDesign frame(const char* name, Rect place, FontSize font, Heading heading) {
  ControlDesign design{name, kSingle, ControlKind::frame, kNoParent, place, name, font};
  design.back = {192, 192, 255};
  design.opaque = design.border = true;
  design.heading = heading;
  return design;
}

using Kind = ControlKind;
inline constexpr ControlDesign kTestTable[] = {
    {.name = "map", .kind = Kind::picture, .place = {-100, -50, 1000, 700}},
    {.name = "line", .index = 0, .kind = Kind::line, .parent = kMap, .fore = kGreen},
    {.name = "line", .index = 1, .kind = Kind::line, .parent = kMap, .fore = kRed},
    {"tag", kSingle, Kind::label, kMap, {300, 500, 80, 20}, "Tag", FontSize::pt12, Align::centre},
    {.name = "back", .kind = Kind::box, .place = {10, 10, 300, 300}, .back = kRed, .opaque = true},
    {.name = "plate", .kind = Kind::image, .place = {640, 20, 120, 40}, .image = "plate"},
    {.name = "name",
     .place = {650, 30, 100, 20},
     .text = "MENU",
     .face = Face::key,
     .faceBox = {646, 28, 108, 26}},
    frame("panel", {20, 20, 260, 200}, FontSize::pt14, Heading::title),
    {.name = "panelBox", .kind = Kind::box, .parent = kPanel, .place = {4, 30, 250, 150}},
    {.name = "combo", .kind = Kind::dropDown, .parent = kPanel, .place = {20, 40, 100, 27}},
    {"check", kSingle, Kind::checkBox, kPanel, {20, 80, 100, 20}, "Check"},
    {"button", kSingle, Kind::button, kPanel, {20, 120, 80, 30}, "Ok"},
    {"cutOff", kSingle, Kind::button, kPanel, {230, 150, 80, 30}, "Beyond"},
    frame("save", {200, 100, 250, 300}, FontSize::pt9, Heading::group),
    {.name = "entry", .kind = Kind::textBox, .parent = kSave, .place = {20, 20, 137, 27}},
    {.name = "files", .kind = Kind::fileList, .parent = kSave, .place = {20, 60, 177, 158}},
    {.name = "note",
     .parent = kSave,
     .place = {20, 230, 60, 60},
     .text = " Two men",
     .border = true},
    {.name = "hidden", .kind = Kind::frame, .place = {0, 0, 800, 600}, .visible = false},
    {.name = "hiddenButton", .kind = Kind::button, .parent = kHidden, .place = {0, 0, 800, 600}},
};

/// The screen on a desk, with a record of the events that the screen received.
class Toolkit : public testing::Test, protected FormListener {
 protected:
  Toolkit() {
    plate_.clear({140, 179, 242});
    canvas_.surface().clear({90, 140, 70});
    form_[kMap].canvas = &canvas_;
    form_[kName].tooltip = "Opens the menu";
    form_[kLine0].from = {400, 300}, form_[kLine0].to = {430, 315};
    form_[kLine1].from = {400, 300}, form_[kLine1].to = {395, 360};
    for (int i = 0; i < 7; ++i) form_[kCombo].list->items.push_back("Track " + std::to_string(i));
    for (int i = 0; i < 30; ++i) form_[kFiles].list->items.push_back(std::to_string(i) + ".sav");
    desk_.open(&form_, this);
  }

  void onMouseMove(int id, int x, int y) override { note({"move", id, x, y}); }
  void onMouseDown(int id, int x, int y) override { note({"down", id, x, y}); }
  void onClick(int id) override { note({"click", id, 0, 0}); }
  void onDoubleClick(int id) override { note({"double", id, 0, 0}); }
  void onChoose(int id) override { note({"choose", id, 0, 0}); }

  using Told = std::tuple<std::string, int, int, int>;
  void note(const Told& what) {
    told_.push_back(what);
    if (handler_) handler_();
  }
  long count(const char* what, int id, int x = 0, int y = 0) {
    return std::count(told_.begin(), told_.end(), Told{what, id, x, y});
  }

  void press(Point at) { desk_.buttonDown(at); }
  void click(Point at) { press(at), desk_.buttonUp(at); }
  Point at(int id, int x, int y) {
    return {form_.onScreen(id).left + x, form_.onScreen(id).top + y};
  }

  Canvas canvas_{1000, 700};
  Surface plate_{60, 20};
  Form form_{kTestTable, nullptr, [this](std::string_view) { return &plate_; }};
  Desk desk_{testFont()};
  std::vector<Told> told_;
  std::function<void()> handler_;
};

}  // namespace platform
