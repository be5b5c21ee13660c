#include "planner/campaign_player.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "core/game_controls.h"
#include "driver/commands.h"

namespace campaign {

namespace {

constexpr int kTimer5 = 25;
// Where the pointer may press the map: clear of the panels, the banner and the edges that slide it.
constexpr int kLeft = 16;
constexpr int kRight = 608;
constexpr int kTop = 96;
constexpr int kBottom = 584;
constexpr std::array<int, 10> kAnchorCode = {0, 11, 21, 31, 41, 51, 6, 0, 7, 81};

}  // namespace

int sideOf(Tool tool) {
  if (tool == kFarm) return 3;
  return tool == kRoad || tool == kDoctor || tool == kDemolish ? 1 : 2;
}

std::string Player::run(const std::string& command) {
  const std::string answer = driver::run(*session_, command);
  if (!answer.starts_with("ok")) throw std::runtime_error(command + ": " + answer);
  write(command);
  return answer;
}

void Player::write(const std::string& line) {
  if (unwritten_ > 0) script_ += "advance " + std::to_string(unwritten_) + "\n";
  unwritten_ = 0;
  script_ += line + "\n";
}

std::string Player::expect(const std::string& command) {
  const std::string answer = run(command);
  write("#= " + answer);
  return answer;
}

void Player::aside(const std::string& command) {
  const std::string answer = driver::run(*session_, command);
  if (!answer.starts_with("ok")) throw std::runtime_error(command + ": " + answer);
}

void Player::gameOpened(bool takenOver) {
  sinceOpening_ = 0;
  palette_ = !takenOver;
}

void Player::advance(int milliseconds) {
  sinceOpening_ += milliseconds;
  unwritten_ += milliseconds;
  session_->advance(milliseconds);
}

void Player::tick() {
  advance(static_cast<int>(1000 - sinceOpening_ % 1000));
}

bool Player::stands(Tool tool, Cell at) {
  return game().tileCode(at.x, at.y) == kAnchorCode[tool];
}

bool Player::unlocked(Tool tool) {
  switch (tool) {
    case kChurch:
      return game().toolUnlocked[1] == 1;
    case kSchool:
      return game().toolUnlocked[2] == 1;
    case kDoctor:
      return game().toolUnlocked[3] == 1;
    case kTavern:
      return game().toolUnlocked[4] == 1;
    default:
      return true;
  }
}

void Player::closeNotice() {
  platform::Form& form = session_->program().screen()->form();
  if (form.shown(core::game_control::bilgi)) run("click Command21");
}

Cell Player::pixelOf(Cell at) {
  const platform::Rect map =
      session_->program().screen()->form().onScreen(core::game_control::picScroll);
  return {32 * (at.x - at.y) + 992 + map.left, 16 * (at.x + at.y) + 48 + map.top};
}

void Player::slideTo(Cell at) {
  const auto slide = [&](const std::string& edge, int times) {
    run("pointer " + edge);
    advance(times * kTimer5);
    run("pointer 400 300");
  };
  const Cell pixel = pixelOf(at);
  if (pixel.x < kLeft) slide("4 300", (kLeft - pixel.x + 63) / 64);
  if (pixel.x > kRight) slide("798 300", (pixel.x - kRight + 63) / 64);
  if (pixel.y < kTop) slide("400 4", (kTop - pixel.y + 31) / 32);
  if (pixel.y > kBottom) slide("400 598", (pixel.y - kBottom + 31) / 32);
}

bool Player::press(Tool tool, Cell at) {
  if (tool != kDemolish && game().gold < 1) return false;
  if (!palette_) {
    run("click building");
    palette_ = true;
  }
  closeNotice();
  if (game().currentTool.whole() != tool || game().lastPaletteTool != tool) {
    run("click Command1 " + std::to_string(tool - 1));
  }
  slideTo(at);
  closeNotice();
  const Cell pixel = pixelOf(at);
  run("click " + std::to_string(pixel.x) + " " + std::to_string(pixel.y));
  if (!inGame()) throw std::runtime_error("the game ended under a press");
  const bool done = tool == kDemolish ? game().tileCode(at.x, at.y) == 0 : stands(tool, at);
  if (!done && game().gold < 1) return false;  // a slide let a tick pass
  if (!done) {
    throw std::runtime_error("press of tool " + std::to_string(tool) + " at " +
                             std::to_string(at.x) + "," + std::to_string(at.y) + " did nothing");
  }
  return true;
}

void Player::setTax(int percent) {
  const int now = game().taxRate.whole();
  if (now == percent) return;
  closeNotice();
  run("click Statusreport");
  const std::string button = percent > now ? "click taxrateplus" : "click taxrateminus";
  for (int n = 0; n < std::abs(percent - now) / 5; ++n) run(button);
  run("click statusclose");
}

void Player::setSpeed(int ticks) {
  const int now = game().ticksPerMonth.whole();
  if (now == ticks) return;
  closeNotice();
  run("click Command5");
  const std::string button = ticks < now ? "click gamespeedplus" : "click gamespeedminus";
  for (int n = 0; n < std::abs(ticks - now) / 9; ++n) run(button);
  run("click Command7");
}

}  // namespace campaign
