#include "planner/player.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "core/game_controls.h"
#include "core/game_state.h"
#include "driver/commands.h"
#include "platform/png.h"

namespace planner {

namespace {

// Middle of a cell, from the upper left corner of the map picture.
constexpr int kMiddleX = 992;
constexpr int kMiddleY = 48;
constexpr int kBoard = 31;  // cells each way of the whole map
// A place where the pointer slides nothing, lights no button and draws no cursor.
constexpr const char* kRest = "pointer 720 588";

}  // namespace

Player::Player(std::shared_ptr<shell::Assets> assets) {
  char name[] = "/tmp/vellmoran-plan-XXXXXX";
  folder_ = mkdtemp(name);
  std::string error;
  session_ = driver::Session::start(folder_, std::move(assets), error);
  if (session_ == nullptr) throw Failure{error};
  act("seed 1");
}

Player::~Player() {
  session_.reset();
  std::filesystem::current_path("/");
  std::filesystem::remove_all(folder_);
}

void Player::openOpenPlay() {
  act("click mainnew");
  act("click stopen");
  act("click opengo");
  act("advance 500");
  act(kRest);
}

void Player::openPuzzle(int level) {
  act("click mainnew");
  act("click stpuzzle");
  act("click Label20 " + std::to_string(level - 1));
  act("advance 500");
  act(kRest);
}

void Player::remark(const std::string& text) {
  script_ += "# " + text + "\n";
}

std::string Player::act(const std::string& command) {
  script_ += command + "\n";
  return look(command);
}

std::string Player::look(const std::string& command) {
  const std::string answer = driver::run(*session_, command);
  if (!answer.starts_with("ok")) throw Failure{command + ": " + answer};
  return answer.size() > 3 ? answer.substr(3) : "";
}

double Player::get(const std::string& name) {
  return std::strtod(look("get " + name).c_str(), nullptr);
}

void Player::expect(const std::string& command) {
  const std::string value = act(command);
  script_ += "#= ok" + (value.empty() ? "" : " " + value) + "\n";
}

bool Player::isOpen(const char* control) {
  return look(std::string("control ") + control).find("\"shown\":true") != std::string::npos;
}

void Player::clickCell(Cell cell) {
  const int margin = (30 - static_cast<int>(get("gMapSize"))) / 2;
  const int x = cell.x + margin;
  const int y = cell.y + margin;
  if (isOpen("bilgi")) act("click Command21");
  // Slide until the cell is neither under a panel nor beyond the edge.
  for (int slides = 0;; ++slides) {
    const platform::Rect map =
        session_->program().screen()->form().onScreen(core::game_control::picScroll);
    const int pixelX = 32 * (x - y) + kMiddleX + map.left;
    const int pixelY = 16 * (x + y) + kMiddleY + map.top;
    const std::string pixel = std::to_string(pixelX) + " " + std::to_string(pixelY);
    const bool inside = pixelX >= 12 && pixelX < 608 && pixelY >= 12 && pixelY < 588;
    if (inside && look("top " + pixel) == "picScroll") {
      act("click " + pixel);
      return;
    }
    if (slides == 40) throw Failure{"cell out of reach"};
    if (pixelX < 12) {
      act("pointer 2 300");
    } else if (pixelX >= 608) {
      act("pointer 799 300");
    } else if (pixelY < 300) {
      act("pointer 400 2");
    } else {
      act("pointer 400 599");
    }
    act("advance 25");
    act(kRest);
    pending_ += 25;
  }
}

void Player::use(Tool tool, Cell cell) {
  if (static_cast<int>(get("currentTool")) != tool) {
    act("click Command1 " + std::to_string(tool - 1));
  }
  const double before = get("nextBuildingId");
  const std::string codesBefore = look("grid tileCode");
  clickCell(cell);
  const bool done = tool == kDemolish ? look("grid tileCode") != codesBefore
                                      : get("nextBuildingId") == before + 1;
  if (!done) {
    throw Failure{"refused: tool " + std::to_string(tool) + " on cell " + std::to_string(cell.x) +
                  "," + std::to_string(cell.y) + ", gold " + look("get gold")};
  }
}

void Player::use(Tool tool, const std::vector<Cell>& cells) {
  for (const Cell& cell : cells) use(tool, cell);
}

void Player::tax(int rate) {
  if (get("taxRate") == rate) return;
  if (isOpen("bilgi")) act("click Command21");
  act("click Statusreport");
  while (get("taxRate") > rate) act("click taxrateminus");
  while (get("taxRate") < rate) act("click taxrateplus");
  act("click statusclose");
  act(kRest);
}

void Player::slowDown() {
  act("click Command5");
  while (get("ticksPerMonth") < 34) act("click gamespeedminus");
  act("click Command7");
  act(kRest);
}

void Player::speedUp() {
  act("click Command5");
  while (get("ticksPerMonth") > 16) act("click gamespeedplus");
  act("click Command7");
  act(kRest);
}

void Player::ticks(int count) {
  if (count <= 0) return;
  // The seconds that sliding took are part of the first one.
  act("advance " + std::to_string(1000 * count - pending_ % 1000));
  pending_ = 0;
  ticks_ += count;
}

void Player::skipped(int seconds) {
  script_ += "advance " + std::to_string(1000 * seconds) + "\n";
  ticks_ += seconds;
}

bool Player::ended() {
  return look("screen") == "frmMain" && isOpen("mscompfrm");
}

void Player::finishPuzzle(int level, int limit, const std::string& figure) {
  act(kRest);
  int waited = 0;
  for (; waited < limit && !ended(); ++waited) {
    takePicture();
    look("advance 1000");
  }
  remark("The goal is met, and the level ends.");
  skipped(waited);
  if (look("control Command4").find("MISSION COMPLETED") == std::string::npos || !ended()) {
    throw Failure{"level not solved: " + figure + " " + look("get " + figure)};
  }
  expect("control Command4");
  expect("get " + figure);
  if (figure == "population") expect("get housingCapacity");
  act("advance 1000");
  expect("screen");
  expect("get puzzleDone" + std::to_string(level));
}

void Player::takePicture() {
  picture_ = session_->program().screen()->canvas()->surface().clone();
  pictureSide_ = static_cast<int>(get("gMapSize")) + 1;
}

void Player::writePicture(const std::string& path) const {
  // The square is a diamond around the middle of the map; buildings rise a little above it.
  constexpr int kRise = 32;
  const int first = (kBoard - pictureSide_) / 2;
  const int left = kMiddleX - 32 * pictureSide_;
  const int top = kMiddleY - 16 + 32 * first - kRise;
  const int step = pictureSide_ > 11 ? 2 : 1;
  platform::Surface cut(64 * pictureSide_ / step, (32 * pictureSide_ + kRise) / step);
  for (int y = 0; y < cut.height(); ++y) {
    for (int x = 0; x < cut.width(); ++x) {
      int sum[3] = {};
      for (int n = 0; n < step * step; ++n) {
        const platform::Color color =
            picture_.pixel(left + step * x + n % step, top + step * y + n / step);
        sum[0] += color.r;
        sum[1] += color.g;
        sum[2] += color.b;
      }
      const auto part = [&](int n) { return static_cast<std::uint8_t>(sum[n] / (step * step)); };
      cut.setPixel(x, y, {part(0), part(1), part(2)});
    }
  }
  std::string error;
  if (!platform::writePng(path, cut, error)) throw Failure{error};
}

}  // namespace planner
