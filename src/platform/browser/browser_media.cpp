#include "platform/browser/browser_media.h"

#include "platform/browser/host.h"

namespace platform {

void BrowserMedia::playCue(int cue) {
  pageCue(cue);
}

void BrowserMedia::openTheme(int theme) {
  pageOpenTheme(theme);
}

void BrowserMedia::playTheme() {
  pagePlayTheme();
}

void BrowserMedia::closeTheme() {
  pageCloseTheme();
}

}  // namespace platform
