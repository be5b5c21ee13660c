#include "driver/session.h"

#include <chrono>

#include "platform/program_folder.h"

namespace driver {

namespace {

std::uint64_t seedFromClock() {
  return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

}  // namespace

Session::Session() : random_(&clock_, seedFromClock()), walkerRandom_(&clock_, ~seedFromClock()) {}

std::shared_ptr<shell::Assets> Session::loadAssets(const std::string& dataFolder,
                                                   std::string& error, int scale) {
  auto assets = std::make_shared<shell::Assets>(scale);
  return assets->load(dataFolder, error) ? assets : nullptr;
}

std::unique_ptr<Session> Session::start(const std::string& folder,
                                        std::shared_ptr<shell::Assets> assets, std::string& error) {
  auto session = std::unique_ptr<Session>(new Session);
  session->assets_ = std::move(assets);
  if (!platform::enterFolder(folder, error)) return nullptr;
  session->folder_ = platform::workingFolder();
  if (session->folder_.empty()) {
    error = folder + ": its full name cannot be found out";
    return nullptr;
  }
  session->services_ = std::make_unique<shell::Services>(shell::Services{session->clock_,
                                                                         session->random_,
                                                                         session->walkerRandom_,
                                                                         session->media_,
                                                                         session->display_,
                                                                         *session->assets_,
                                                                         session->folder_,
                                                                         {}});
  session->program_ = std::make_unique<shell::Program>(*session->services_);
  session->program_->start();
  return session;
}

void Session::advance(std::int64_t milliseconds) {
  const std::int64_t target = clock_.milliseconds() + milliseconds;
  while (program_->screen() != nullptr) {
    const std::int64_t due = program_->screen()->timers().nextDue();
    if (due < 0 || due > target) break;
    if (due > clock_.milliseconds()) clock_.advanceTo(due);
    program_->runTimers();
  }
  clock_.advanceTo(target);
}

void Session::pointer(int x, int y) {
  program_->desk().setNow(clock_.milliseconds());
  program_->desk().pointerMoved({x, y});
  program_->settle();
}

void Session::press() {
  program_->desk().buttonDown();
  program_->settle();
}

void Session::release() {
  program_->desk().buttonUp();
  program_->settle();
}

}  // namespace driver
