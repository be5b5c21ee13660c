#include "platform/sdl/sdl_clipboard.h"

#include <SDL.h>

namespace platform {

std::string SdlClipboard::text() {
  char* const held = SDL_GetClipboardText();
  std::string text = held != nullptr ? held : "";
  SDL_free(held);
  return text;
}

void SdlClipboard::setText(const std::string& text) {
  SDL_SetClipboardText(text.c_str());
}

}  // namespace platform
