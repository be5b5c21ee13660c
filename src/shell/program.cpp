#include "shell/program.h"

#include "map/geometry.h"
#include "shell/game_screen.h"
#include "shell/menu_screen.h"

namespace shell {

Program::Program(Services& services)
    : services_(services),
      progress_(services.programFolder, services.folderFault),
      desk_(*services.assets.font, services.clipboard),
      painter_(*services.assets.font, services.assets.skin),
      framebuffer_(platform::kScreenWidth, platform::kScreenHeight, services.assets.scale()) {}

Program::~Program() {
  desk_.open(nullptr, nullptr);
}

void Program::start() {
  openMenu();
}

void Program::open(std::unique_ptr<Screen> screen) {
  if (screen_ != nullptr) closed_.push_back(std::move(screen_));
  screen_ = std::move(screen);
  desk_.open(screen_ ? &screen_->form() : nullptr, screen_.get());
  turnPage();
}

bool Program::readAhead() {
  if (ended_ || services_.assets.complete()) return false;
  std::string error;
  if (services_.assets.readNext(error)) return true;
  endWith(error);
  return false;
}

void Program::endWith(const std::string& error) {
  services_.display.message("Error", error.c_str());
  end(1);
}

void Program::openGame() {
  while (readAhead()) {
  }
  if (ended_) return;
  std::string error;
  if (!services_.assets.readBackdrop(values_.gMission, error)) return endWith(error);
  if (canvas_.surface().empty())
    canvas_ = platform::Canvas(map::kRestingPlace.width, map::kRestingPlace.height,
                               services_.assets.scale());
  auto game = std::make_unique<GameScreen>(*this);
  GameScreen& opened = *game;
  const bool cityTakenOver = opened.load();
  open(std::move(game));
  services_.assets.dropMenuBackground();
  // A box has reported a city that could not be taken over; there is nothing to play.
  if (!cityTakenOver) openMenu();
}

void Program::openMenu() {
  services_.assets.beginMenuBackground();
  auto menu = std::make_unique<MenuScreen>(*this);
  MenuScreen& opened = *menu;
  open(std::move(menu));
  opened.load();
  std::string error;
  if (!ended_ && !services_.assets.finishMenuBackground(error)) endWith(error);
}

void Program::end(int exitStatus) {
  std::string error;
  progress_.writeKept(error);  // a window that was closed leaves no time for a message
  ended_ = true;
  exitStatus_ = exitStatus;
  open(nullptr);
}

void Program::runTimers() {
  ++depth_;
  while (screen_ != nullptr) {
    const int timer = screen_->timers().takeDue();
    if (timer < 0) break;
    screen_->tick(timer);
  }
  --depth_;
  settle();
}

void Program::letWaitingHandlersRun() {
  ++depth_;
  if (services_.letEventsIn) services_.letEventsIn();
  runTimers();
  --depth_;
}

void Program::settle() {
  if (depth_ == 0) closed_.clear();
}

std::int64_t Program::nextDue() {
  const std::int64_t timers = screen_ != nullptr ? screen_->timers().nextDue() : -1;
  const std::int64_t tooltip = desk_.tooltipDue();
  if (timers < 0 || (tooltip >= 0 && tooltip < timers)) return tooltip;
  return timers;
}

const platform::DamageList& Program::paint() {
  const std::int64_t now = services_.clock.milliseconds();
  desk_.setNow(now);
  return painter_.paint(framebuffer_, desk_, now);
}

}  // namespace shell
