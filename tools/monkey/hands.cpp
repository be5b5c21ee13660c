#include "monkey/hands.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "map/geometry.h"
#include "play/game_controls.h"

namespace monkey {

namespace {

using std::to_string;

// The button goes up with the next click, or wherever a release comes.
std::string at(const char* what, int x, int y) {
  return std::string(what) + " " + to_string(x) + " " + to_string(y);
}

constexpr const char* kKeys[] = {"Backspace", "Enter",  "Escape",     "Left",           "Right",
                                 "Home",      "End",    "Delete",     "Ctrl+A",         "Ctrl+X",
                                 "Ctrl+V",    "Ctrl+C", "Shift+Home", "Ctrl+Shift+Left"};
constexpr const char* kTexts[] = {
    "a",   "b", "town", "Stadt", "\xC3\xA9t\xC3\xA9", "x y", "\"'%$,",      ".", "..", "/",
    "a/b", "0", "-",    "sav",   "bad.sav",           "\\",  "\xE2\x82\xAC"};

}  // namespace

std::string Hands::next(driver::Session& session) {
  if (session.program().desk().box() != nullptr && chance_.percent(60)) return "click OK";
  if (plan_.empty() && chance_.percent(10)) plan(session);
  if (plan_.empty() || chance_.percent(15)) return nonsense(session);
  std::string command = plan_.front();
  plan_.pop_front();
  if (command == "cell") {
    lastX_ = chance_.between(0, 30);
    lastY_ = chance_.between(0, 30);
    return cell(session, 2);
  }
  if (std::sscanf(command.c_str(), "at %d %d", &lastX_, &lastY_) == 2) return cell(session, 0);
  if (command == "near") return cell(session, 2);
  if (command == "on x" || command == "on y") {
    ++(command == "on x" ? lastX_ : lastY_);
    return cell(session, 0);
  }
  if (command == "file") {
    return "choose File" + to_string(chance_.between(1, 2)) + " " + chance_.pick(kTexts) + ".sav";
  }
  return command;
}

std::string Hands::nonsense(driver::Session& session) {
  const int kind = chance_.draw(100);
  const int x = chance_.draw(800);
  const int y = chance_.draw(600);
  if (kind < 22) return named(session);
  if (kind < 32) return at("click", x, y);
  if (kind < 52) return cell(session, 2);
  if (kind < 62) return at("pointer", x, y);
  if (kind < 66) {
    constexpr std::array<std::pair<int, int>, 6> kEdges{
        {{0, 300}, {799, 300}, {300, 0}, {300, 599}, {0, 0}, {799, 599}}};
    const auto& [edgeX, edgeY] = chance_.pick(kEdges);
    return at("pointer", edgeX, edgeY);
  }
  if (kind < 84) return wait();
  if (kind < 87) return std::string("type ") + chance_.pick(kTexts);
  if (kind < 91) return std::string("key ") + chance_.pick(kKeys);
  if (kind < 93) return "wheel " + to_string(chance_.between(-3, 3));
  if (kind < 95) return at("press", x, y);
  if (kind < 97) return "release";
  if (kind < 98) {
    constexpr const char* kMusic[] = {"Auto play", "Off", "Track 1", "Track 3", "Track 5"};
    return std::string("choose Combo1 ") + chance_.pick(kMusic);
  }
  return std::string("choose File1 ") + chance_.pick(kTexts) + ".sav";
}

std::string Hands::wait() {
  const int kind = chance_.draw(100);
  int milliseconds = chance_.between(1, 60);
  if (kind >= 50) milliseconds = chance_.between(60, 1500);
  if (kind >= 90) milliseconds = chance_.between(1500, 9000);
  if (kind >= 99) milliseconds = chance_.between(9000, 60000);
  return "advance " + to_string(milliseconds);
}

/// A click on a control that can be clicked, picked at random.
std::string Hands::named(driver::Session& session) {
  platform::Form& form = session.program().screen()->form();
  const platform::Desk& desk = session.program().desk();
  for (int tries = 0; tries < 100; ++tries) {
    const int id = chance_.draw(form.count());
    if (!form.shown(id)) continue;
    const platform::Rect place = form.onScreen(id);
    if (desk.topmost({place.left + place.width / 2, place.top + place.height / 2}) != id) continue;
    const platform::ControlDesign& design = *form[id].design;
    const std::string name = design.name;
    // The ways out are taken seldom: more happens inside.
    if (name == "mainquit" && !chance_.percent(5)) continue;
    if (name == "Command19" && !chance_.percent(20)) continue;
    if ((name == "Label16" || name == "Label17") && !chance_.percent(5)) continue;
    return "click " + name +
           (design.index == platform::kSingle ? "" : " " + to_string(design.index));
  }
  return "advance 25";
}

/// A click on a cell of the map near the last one.
std::string Hands::cell(driver::Session& session, int astray) {
  lastX_ = std::clamp(lastX_ + chance_.between(-astray, astray), 0, 30);
  lastY_ = std::clamp(lastY_ + chance_.between(-astray, astray), 0, 30);
  platform::Rect place = map::kRestingPlace;
  if (session.program().screen()->canvas() != nullptr) {
    place = session.program().screen()->form().onScreen(play::game_control::picScroll);
  }
  const platform::Point centre = map::cellCentre(lastX_, lastY_);
  const int x = centre.x + place.left + chance_.between(-8, 8);
  const int y = centre.y + place.top + chance_.between(-4, 4);
  if (x < 0 || x > 622 || y < 40 || y > 599) {
    lastX_ = lastY_ = 15;
    return "advance 25";
  }
  return at("click", x, y);
}

// --- plans ---

void Hands::plan(driver::Session& session) {
  if (session.program().screen()->canvas() == nullptr) {
    planInMenu();
  } else {
    planInGame(session);
  }
}

void Hands::planInMenu() {
  const std::string row = to_string(chance_.draw(10));
  const int kind = chance_.draw(10);
  if (kind == 0) {
    add("click mainhelp");
  } else if (kind < 3) {
    for (const char* step : {"click mainload", "advance 600", "file", "click cmdload"}) add(step);
  } else {
    add("click mainnew");
    if (kind < 6) {
      add("click stcampaign");
      add("click Label6 " + row);
      add("click Command14");
    } else if (kind < 8) {
      add("click stpuzzle");
      add("click Label20 " + row);
    } else {
      add("click stopen");
      for (int n = 0; n < 3; ++n) add("click Check" + to_string(chance_.between(1, 9)));
      add("click opengo");
    }
  }
  add("advance 600");
}

void Hands::planInGame(driver::Session& session) {
  const int kind = chance_.draw(20);
  if (session.program().values().gLoadPending == 1) {
    add("file");
    add(chance_.percent(90) ? "click cmdload" : "click cmdcancel");
    add("advance 600");
  } else if (kind < 5) {
    planTown();
  } else if (kind < 9) {
    planStreet(session);
  } else if (kind < 11) {
    add("click gmmenu");
    add("click savegame");
    add("click txtsavename");
    for (int n = 0; n < 8; ++n) add("key Backspace");
    add(std::string("type ") + chance_.pick(kTexts));
    add("click cmdsave");
  } else if (kind < 14) {
    for (const char* step : {"click gmmenu", "click ldgame", "file", "click cmdload"}) add(step);
    add("advance " + to_string(chance_.between(100, 700)));
    if (chance_.percent(50)) planStreet(session);
  } else if (kind < 15) {
    add("click seer " + to_string(chance_.draw(core::kServices + 1)));
    add(wait());
    if (chance_.percent(70)) add("click seer 0");
  } else if (kind < 16) {
    add("click Statusreport");
    for (int n = 0; n < 4; ++n) {
      add(chance_.percent(60) ? "click taxrateminus" : "click taxrateplus");
    }
    add("advance 1000");
    add("click statusclose");
  } else if (kind < 17) {
    for (const char* step : {"click Command5", "click spriteonoff", "click zoomminus",
                             "click gamespeedplus", "click Command7"}) {
      if (chance_.percent(70)) add(step);
    }
  } else if (kind < 19) {
    add("advance " + to_string(chance_.between(10, 40) * 1000));
  } else if (chance_.percent(25)) {
    add("click gmmenu");
    add("click Command19");
  }
}

/// Roads and buildings close together, and now and then something pulled down.
void Hands::planTown() {
  constexpr int kRoad = 7;
  add("click building");
  if (chance_.percent(30)) add("cell");
  if (chance_.percent(50)) {
    const char* step = chance_.percent(50) ? "on x" : "on y";
    for (int n = chance_.between(3, 8); n > 0; --n) add(step);
  }
  for (int rounds = chance_.between(1, 4); rounds > 0; --rounds) {
    const int index = chance_.percent(40) ? kRoad : chance_.draw(9);
    add("click Command1 " + to_string(index));
    for (int presses = chance_.between(1, index == kRoad ? 9 : 4); presses > 0; --presses) {
      add("near");
    }
  }
}

/// A street with buildings on both sides; at times it is cut afterwards.
void Hands::planStreet(driver::Session& session) {
  const int side = session.program().values().gMapSize.whole();
  const int first = (30 - side) / 2;
  const int length = std::min(chance_.between(6, 12), side);
  const bool alongX = chance_.percent(50);
  // It begins at a cell in sight, up on the left or right so that its far end is in sight too.
  const platform::Rect place =
      session.program().screen()->form().onScreen(play::game_control::picScroll);
  const int across = (alongX ? chance_.between(60, 300) : chance_.between(320, 560)) - place.left;
  const int down = chance_.between(100, 300) - place.top;
  const platform::Point cell = map::cellAt(across, down);
  const int x = std::clamp(cell.x, first, first + side);
  const int y = std::clamp(cell.y, first, first + side);
  const auto press = [&](int along, int aside) {
    add("at " + to_string(x + (alongX ? along : aside)) + " " +
        to_string(y + (alongX ? aside : along)));
  };
  const auto take = [this](int index) { add("click Command1 " + to_string(index)); };
  add("click building");
  for (int n = 0; n < length; ++n) press(n, 0);
  // With all services its residences grow to the top.
  int services = chance_.percent(50) ? core::kServices : 0;
  for (int n = 0; n + 1 < length; n += 2) {
    for (const int aside : {1, -2}) {
      take(services > 0          ? services--
           : chance_.percent(85) ? 0
                                 : chance_.between(1, core::kServices));
      press(n, aside);
    }
  }
  if (chance_.percent(60)) {
    take(8);
    press(length, chance_.between(-2, 2));
  }
  if (chance_.percent(20)) {
    take(6);
    press(chance_.draw(length), chance_.between(-1, 1));
    add("advance " + to_string(chance_.between(1, 8) * 1000));
  }
}

}  // namespace monkey
