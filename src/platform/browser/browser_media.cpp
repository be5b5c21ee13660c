#include "platform/browser/browser_media.h"

#include "platform/browser/host.h"

namespace platform {

namespace {

/// The number in a file's name: 3 for ".../theme3.Mid"; 0 for a name that does not begin with `stem`.
int numberOf(std::string_view path, std::string_view stem) {
  path.remove_prefix(path.find_last_of("/\\") + 1);
  return path.starts_with(stem) && path.size() > stem.size() ? path[stem.size()] - '0' : 0;
}

}  // namespace

bool BrowserMedia::sndPlaySoundA(std::string_view path, int) {
  return pageCue(numberOf(path, "sound")) != 0;
}

int BrowserMedia::mciSendStringA(std::string_view command) {
  if (command == "play canyon") return pagePlayTheme() != 0 ? 0 : 1;
  if (command == "close canyon") {
    pageCloseTheme();
    return 0;
  }
  return pageOpenTheme(numberOf(command, "theme")) != 0 ? 0 : 1;
}

}  // namespace platform
