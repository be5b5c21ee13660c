// The window. It fills the desktop at the desktop's own mode and shows the picture of 800 x 600
// units scaled to fit; F11 and Alt+Enter make it an ordinary window and back.
#pragma once

#include <memory>
#include <string>

#include "platform/display.h"
#include "platform/scaler.h"
#include "platform/sdl/window_manager.h"
#include "platform/sdl/x11_window.h"

struct SDL_Rect;
struct SDL_Window;
union SDL_Event;

namespace platform {

class SdlDisplay : public Display {
 public:
  /// Paths of a PNG for the window, where a missing one is no fault, and of the font for messages.
  /// No window is opened yet.
  SdlDisplay(std::string icon, std::string font);
  ~SdlDisplay() override;
  SdlDisplay(const SdlDisplay&) = delete;
  SdlDisplay& operator=(const SdlDisplay&) = delete;

  /// The scale to draw at, which the desktop at the first call decides for good.
  int scale();
  /// What that will be, as far as it can be seen without starting the video system: wrong where the
  /// monitors differ, or without an X server.
  int likelyScale() const { return scaleFor(server_.screen); }

  /// 0 x 0 where there is no display at all.
  Size size() override;
  /// 800 x 600 opens the window, where it is not open yet; any other size closes it.
  int change(Size size) override;
  void present(const Surface& framebuffer, std::span<const Rect> changed) override;
  void message(const char* title, const char* text) override;

  /// Why `change` refused, in the words of the window system.
  const std::string& failure() const { return failure_; }

  // For the events.
  /// Nobody can see the window: it is minimised or hidden.
  bool hidden() const;
  bool focused() const;
  /// The window fills the screen.
  bool full() const { return full_; }
  /// The screen has another size, as an event of the window system says.
  void followScreen(const SDL_Event& event);
  void toggleFullScreen();
  /// The window's size may have changed, and what was on it may be gone.
  void rearrange();
  /// The unit of the picture at a point of the window.
  Point pictured(Point inWindow) const;
  bool inWindow(Point point) const;

 private:
  bool startVideo();
  void stopVideo();
  bool openAnyWindow();
  bool openWindow();
  void closeWindow();
  void setIcon();
  void presentOnSurface(const Surface& framebuffer, std::span<const Rect> changed);

  bool openForMessage();
  SDL_Rect desktop() const;
  void place();

  XServer server_;
  std::string icon_;
  std::string font_;
  std::string failure_;
  SDL_Window* window_ = nullptr;
  std::unique_ptr<X11Window> x11_;  // null where the window's own surface is used
  std::unique_ptr<Scaler> scaler_;
  Size windowSize_{};
  int scale_ = 0;  // 0 while nobody has wanted to know
  bool videoStarted_ = false;
  bool barsShown_ = false;
  // Somebody answers a wish for full screen; else the window covers the screen by itself.
  bool managed_ = true;
  bool full_ = true;
  Size screen_{};  // once it has changed, where nobody but us follows that
};

}  // namespace platform
