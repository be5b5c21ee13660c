#include "platform/sdl/message_window.h"

#include <SDL.h>

#include "platform/painter.h"
#include "platform/sdl/sdl_display.h"
#include "platform/sdl/sdl_events.h"
#include "platform/skin.h"

namespace platform {

namespace {

/// The game's font, or where its data folder is missing one that many machines have.
std::unique_ptr<Font> openFont(const std::string& path) {
  for (const std::string& candidate :
       {path, std::string("/usr/share/fonts/opentype/comic-neue/ComicNeue-Bold.otf"),
        std::string("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf")}) {
    std::string error;
    if (auto font = Font::open(candidate, error)) return font;
  }
  return nullptr;
}

}  // namespace

bool showMessage(SdlDisplay& display, const std::string& fontPath, std::string_view title,
                 std::string_view text) {
  const auto font = openFont(fontPath);
  if (font == nullptr) return false;
  Desk desk(*font);
  desk.showBox(title, text);
  Skin skin;
  std::string error;
  const std::string data = fontPath.substr(0, fontPath.find_last_of('/') + 1);
  if (!skin.load(data + "pictures/panel", error, 1)) skin = {};
  Painter painter(*font, skin);
  Surface framebuffer(kScreenWidth, kScreenHeight);
  SdlEvents events(display);
  Event event;
  while (desk.box() != nullptr && event.kind != EventKind::quit) {
    const DamageList& changed = painter.paint(framebuffer, desk, 0);
    if (!changed.empty()) display.present(framebuffer, changed.rects());
    if (!events.next(event, -1)) continue;
    if (event.kind == EventKind::redraw) painter.forget();
    deliver(event, desk);
  }
  // Who asked the program to quit did not mean the box alone.
  if (event.kind == EventKind::quit) {
    SDL_Event quit{};
    quit.type = SDL_QUIT;
    SDL_PushEvent(&quit);
  }
  return true;
}

}  // namespace platform
