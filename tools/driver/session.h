// The whole program without a window: virtual time, a framebuffer in memory, sound as a log.
#pragma once

#include <memory>
#include <string>

#include "platform/virtual/virtual_clock.h"
#include "platform/virtual/virtual_display.h"
#include "platform/virtual/virtual_media.h"
#include "shell/program.h"

namespace driver {

class Session {
 public:
  /// Starts the program in `folder`, which becomes the working folder. Null, with the reason in
  /// `error`, when it can't be started. Sessions that follow one another may share their assets.
  static std::unique_ptr<Session> start(const std::string& folder,
                                        std::shared_ptr<shell::Assets> assets, std::string& error);
  /// Reads pictures and font for drawing at a scale. Null, with the reason in `error`, when something is missing.
  static std::shared_ptr<shell::Assets> loadAssets(const std::string& dataFolder,
                                                   std::string& error, int scale = 1);

  shell::Program& program() { return *program_; }
  shell::Services& services() { return *services_; }
  platform::VirtualClock& clock() { return clock_; }
  platform::VirtualMedia& media() { return media_; }
  platform::VirtualDisplay& display() { return display_; }
  platform::Random& random() { return random_; }
  platform::Random& walkerRandom() { return walkerRandom_; }
  platform::Font& font() { return *assets_->font; }
  const std::string& folder() const { return folder_; }

  /// Lets virtual time pass; every due timer ticks, in order of its due time.
  void advance(std::int64_t milliseconds);
  void pointer(int x, int y);
  void press();
  void release();

 private:
  Session();

  platform::VirtualClock clock_;
  platform::Random random_;
  platform::Random walkerRandom_;
  platform::VirtualMedia media_;
  platform::VirtualDisplay display_;
  std::shared_ptr<shell::Assets> assets_;
  std::string folder_;
  std::unique_ptr<shell::Services> services_;
  std::unique_ptr<shell::Program> program_;
};

}  // namespace driver
