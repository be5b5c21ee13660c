#include "platform/virtual/virtual_media.h"

#include <utility>

namespace platform {

bool VirtualMedia::sndPlaySoundA(std::string_view path, int) {
  const std::size_t separator = path.find_last_of("/\\");
  log_.emplace_back(separator == std::string_view::npos ? path : path.substr(separator + 1));
  return true;
}

int VirtualMedia::mciSendStringA(std::string_view command) {
  log_.emplace_back(command);
  return 0;
}

std::vector<std::string> VirtualMedia::take() {
  return std::exchange(log_, {});
}

}  // namespace platform
