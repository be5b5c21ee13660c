#include "platform/virtual/virtual_media.h"

#include <utility>

namespace platform {

void VirtualMedia::playCue(int cue) {
  log_.push_back("sound" + std::to_string(cue) + ".wav");
}

void VirtualMedia::openTheme(int theme) {
  log_.push_back("Open \"F\\theme" + std::to_string(theme) + ".Mid\" type sequencer alias canyon");
}

void VirtualMedia::playTheme() {
  log_.emplace_back("play canyon");
}

void VirtualMedia::closeTheme() {
  log_.emplace_back("close canyon");
}

std::vector<std::string> VirtualMedia::take() {
  return std::exchange(log_, {});
}

}  // namespace platform
