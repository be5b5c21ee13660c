#include "platform/sdl/sdl_display.h"

#include <SDL.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

#include "platform/damage.h"
#include "platform/png.h"
#include "platform/sdl/hush.h"
#include "platform/sdl/message_window.h"
#include "platform/sdl/session_end.h"
#include "platform/wrap_columns.h"

namespace platform {

namespace {

constexpr const char* kTitle = "Vellmoran";
constexpr int kMessageColumns = 72;
constexpr Size kPicture{kScreenWidth, kScreenHeight};
constexpr Rect kWhole{0, 0, kScreenWidth, kScreenHeight};

bool isByte(Uint32 mask) {
  return mask == 0xFFu || mask == 0xFF00u || mask == 0xFF0000u || mask == 0xFF000000u;
}

bool wholeBytes(const SDL_PixelFormat& format) {
  return format.BytesPerPixel == 4 && isByte(format.Rmask) && isByte(format.Gmask) &&
         isByte(format.Bmask);
}

// The player looks where the pointer is.
int monitorOfPointer() {
  SDL_Point pointer{0, 0};
  SDL_GetGlobalMouseState(&pointer.x, &pointer.y);
  return std::max(0, SDL_GetPointDisplayIndex(&pointer));
}

// The largest whole factor that leaves a tenth of the desktop free.
Size windowedSize(Size desktop) {
  const int factor = std::max(
      1, std::min(desktop.width * 9 / 10 / kScreenWidth, desktop.height * 9 / 10 / kScreenHeight));
  return {kScreenWidth * factor, kScreenHeight * factor};
}

}  // namespace

SdlDisplay::SdlDisplay(std::string icon, std::string font)
    : server_(lookAtServer()), icon_(std::move(icon)), font_(std::move(font)) {}

SdlDisplay::~SdlDisplay() {
  closeWindow();
  stopVideo();
}

void SdlDisplay::stopVideo() {
  if (videoStarted_) SDL_QuitSubSystem(SDL_INIT_VIDEO);
  videoStarted_ = false;
}

bool SdlDisplay::startVideo() {
  if (videoStarted_) return true;
  SDL_SetHint(SDL_HINT_APP_NAME, kTitle);
  SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
  SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
  const Hush hush;
  if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) {
    failure_ = SDL_GetError();
    return false;
  }
  videoStarted_ = true;
  hangUpAsTermination();
  const std::string_view driver = SDL_GetCurrentVideoDriver();
  // Where there is no display the library may take a driver that shows nothing, unasked.
  if (SDL_getenv("SDL_VIDEODRIVER") == nullptr && (driver == "offscreen" || driver == "dummy")) {
    failure_ = "there is no display";
    stopVideo();
    return false;
  }
  if (driver == "x11") managed_ = server_.managed;
  return true;
}

int SdlDisplay::scale() {
  if (scale_ == 0) scale_ = scaleFor(size());
  return scale_;
}

Size SdlDisplay::size() {
  if (window_ != nullptr) return kPicture;
  SDL_DisplayMode mode{};
  if (!startVideo() || SDL_GetDesktopDisplayMode(monitorOfPointer(), &mode) != 0) return {};
  return {mode.w, mode.h};
}

int SdlDisplay::change(Size size) {
  if (size != kPicture) {
    closeWindow();
    return 0;
  }
  if (window_ != nullptr) return 0;
  if (startVideo() && openAnyWindow()) return 0;
  std::fprintf(stderr, "vellmoran: no window: %s\n", failure_.c_str());
  return -1;
}

bool SdlDisplay::openAnyWindow() {
  // Straight to the window: a renderer behind the window's surface costs a tenth of a second at the
  // start and a hundred megabytes. Only X has such a surface of its own, which is what is left where
  // memory cannot be shared with the server.
  const bool straight = std::string_view(SDL_GetCurrentVideoDriver()) == "x11";
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, straight ? "0" : nullptr);
  if (openWindow()) return true;
  if (!straight) return false;
  // There is no such surface for a display of 10 bits a channel, which a renderer can still serve. The
  // library looks at the hint once in the life of its video system.
  stopVideo();
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, nullptr);
  return startVideo() && openWindow();
}

bool SdlDisplay::openWindow() {
  const SDL_Rect monitor = desktop();
  if (managed_) {
    const Size size = windowedSize({monitor.w, monitor.h});
    const int centre = SDL_WINDOWPOS_CENTERED_DISPLAY(monitorOfPointer());
    window_ = SDL_CreateWindow(kTitle, centre, centre, size.width, size.height,
                               SDL_WINDOW_FULLSCREEN_DESKTOP | SDL_WINDOW_RESIZABLE);
  } else {
    window_ =
        SDL_CreateWindow(kTitle, monitor.x, monitor.y, monitor.w, monitor.h, SDL_WINDOW_BORDERLESS);
  }
  if (window_ != nullptr) x11_ = X11Window::open(window_);
  if (window_ == nullptr || (x11_ == nullptr && SDL_GetWindowSurface(window_) == nullptr)) {
    failure_ = SDL_GetError();
    closeWindow();
    return false;
  }
  full_ = true;
  SDL_SetWindowMinimumSize(window_, kScreenWidth / 2, kScreenHeight / 2);
  SDL_SetWindowMouseGrab(window_, SDL_TRUE);
  setIcon();
  if (!managed_) watchScreen(window_);
  rearrange();
  return true;
}

/// The monitor that shows the window, or is to show it.
SDL_Rect SdlDisplay::desktop() const {
  if (screen_ != Size{}) return {0, 0, screen_.width, screen_.height};
  SDL_Rect bounds{0, 0, kScreenWidth, kScreenHeight};
  SDL_GetDisplayBounds(window_ != nullptr ? SDL_GetWindowDisplayIndex(window_) : monitorOfPointer(),
                       &bounds);
  return bounds;
}

/// Puts the window where a window manager would have put it.
void SdlDisplay::place() {
  SDL_Rect place = desktop();
  if (!full_) {
    const Size size = windowedSize({place.w, place.h});
    place.x += (place.w - size.width) / 2;
    place.y += (place.h - size.height) / 2;
    place.w = size.width;
    place.h = size.height;
  }
  SDL_SetWindowPosition(window_, place.x, place.y);
  SDL_SetWindowSize(window_, place.w, place.h);
}

void SdlDisplay::followScreen(const SDL_Event& event) {
  if (window_ == nullptr || !newScreenSize(event, screen_)) return;
  place();
  rearrange();
}

bool SdlDisplay::hidden() const {
  return window_ != nullptr &&
         (SDL_GetWindowFlags(window_) & (SDL_WINDOW_MINIMIZED | SDL_WINDOW_HIDDEN)) != 0;
}

bool SdlDisplay::focused() const {
  // Without a window manager there is nobody to give the focus to a window, or to take it.
  return !managed_ ||
         (window_ != nullptr && (SDL_GetWindowFlags(window_) & SDL_WINDOW_INPUT_FOCUS) != 0);
}

void SdlDisplay::closeWindow() {
  x11_.reset();
  if (window_ != nullptr) SDL_DestroyWindow(window_);
  window_ = nullptr;
  windowSize_ = {};
  scaler_.reset();
}

void SdlDisplay::setIcon() {
  std::vector<std::uint8_t> pixels;
  Size size;
  std::string error;
  if (!readPngRgba(icon_, pixels, size, error)) return;
  SDL_Surface* const icon = SDL_CreateRGBSurfaceWithFormatFrom(
      pixels.data(), size.width, size.height, 32, size.width * 4, SDL_PIXELFORMAT_RGBA32);
  if (icon == nullptr) return;
  SDL_SetWindowIcon(window_, icon);
  SDL_FreeSurface(icon);
}

void SdlDisplay::toggleFullScreen() {
  if (window_ == nullptr) return;
  full_ = !full_;
  SDL_SetWindowMouseGrab(window_, full_ ? SDL_TRUE : SDL_FALSE);
  if (managed_) {
    SDL_SetWindowFullscreen(window_, full_ ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0);
  } else {
    place();
  }
  rearrange();
}

void SdlDisplay::rearrange() {
  barsShown_ = false;
  if (window_ == nullptr) return;
  Size size;
  SDL_GetWindowSize(window_, &size.width, &size.height);
  if (size == windowSize_) return;
  windowSize_ = size;
  scaler_ = std::make_unique<Scaler>(
      kPicture, Size{std::max(1, size.width), std::max(1, size.height)}, scale());
}

Point SdlDisplay::pictured(Point inWindow) const {
  return scaler_ == nullptr ? inWindow : scaler_->pictured(inWindow);
}

bool SdlDisplay::inWindow(Point point) const {
  return Rect{0, 0, windowSize_.width, windowSize_.height}.contains(point);
}

void SdlDisplay::present(const Surface& framebuffer, std::span<const Rect> changed) {
  if (window_ == nullptr) return;
  if (x11_ == nullptr) {
    presentOnSurface(framebuffer, changed);
    return;
  }
  std::array<Rect, DamageList::kCapacity> parts;
  if (!barsShown_ || changed.size() > parts.size()) changed = {&kWhole, 1};
  std::size_t count = 0;
  for (const Rect& rect : changed) parts[count++] = scaler_->covered(rect);
  if (!barsShown_) x11_->showBars(scaler_->place(), windowSize_);
  barsShown_ = true;
  if (x11_->present(*scaler_, framebuffer, {parts.data(), count})) return;
  x11_.reset();
  barsShown_ = false;
  presentOnSurface(framebuffer, changed);
}

void SdlDisplay::presentOnSurface(const Surface& framebuffer, std::span<const Rect> changed) {
  SDL_Surface* const surface = SDL_GetWindowSurface(window_);
  if (surface == nullptr) return;
  if (Size{surface->w, surface->h} != windowSize_) {
    // The surface is new and empty, and the events that will tell it are still to come.
    windowSize_ = {surface->w, surface->h};
    scaler_ = std::make_unique<Scaler>(kPicture, windowSize_, scale());
    barsShown_ = false;
  }

  std::array<SDL_Rect, DamageList::kCapacity + 1> shown;
  std::size_t count = 0;
  const bool everything = !barsShown_ || changed.size() > shown.size();
  if (!barsShown_) {
    SDL_FillRect(surface, nullptr, SDL_MapRGB(surface->format, 0, 0, 0));
    barsShown_ = true;
  }
  if (everything) changed = {&kWhole, 1};
  // A display of another depth gets its pixels by way of a surface of 32 bits.
  const bool direct = wholeBytes(*surface->format);
  SDL_Surface* const target = direct ? surface
                                     : SDL_CreateRGBSurfaceWithFormat(0, surface->w, surface->h, 32,
                                                                      SDL_PIXELFORMAT_XRGB8888);
  if (target == nullptr) return;
  const PixelMemory memory{static_cast<std::uint8_t*>(target->pixels),
                           static_cast<std::size_t>(target->pitch), target->format->Rshift,
                           target->format->Gshift, target->format->Bshift};
  if (SDL_MUSTLOCK(target)) SDL_LockSurface(target);
  for (const Rect& rect : changed) {
    const Rect part = scaler_->covered(rect);
    if (part.empty()) continue;
    scaler_->scale(framebuffer, part, memory);
    shown[count++] = {part.left, part.top, part.width, part.height};
  }
  if (SDL_MUSTLOCK(target)) SDL_UnlockSurface(target);
  if (!direct) {
    for (std::size_t i = 0; i < count; ++i) {
      SDL_Rect to = shown[i];
      SDL_BlitSurface(target, &shown[i], surface, &to);
    }
    SDL_FreeSurface(target);
  }
  if (everything) {
    SDL_UpdateWindowSurface(window_);
  } else if (count > 0) {
    SDL_UpdateWindowSurfaceRects(window_, shown.data(), static_cast<int>(count));
  }
}

bool SdlDisplay::openForMessage() {
  return window_ != nullptr || (startVideo() && openAnyWindow());
}

// The library's own box comes last: it needs fonts of the X server, which many a desktop of today
// does not have.
void SdlDisplay::message(const char* title, const char* text) {
  std::fprintf(stderr, "%s: %s\n", title, text);
  if (openForMessage() && showMessage(*this, font_, title, text)) return;
  const Hush hush;
  SDL_ShowSimpleMessageBox(SDL_MESSAGEBOX_ERROR, title, wrapColumns(text, kMessageColumns).c_str(),
                           window_);
}

}  // namespace platform
