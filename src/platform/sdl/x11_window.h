// Brings a picture to a window of the X server by way of a few megabytes of memory that both share.
//
// The library's own surface of a window is as large as the window, 33 MB at 3840 x 2160. Here the
// picture goes band by band through a buffer that stays in the processor's cache.
#pragma once

#include <memory>
#include <span>

#include "platform/scaler.h"

struct SDL_Window;

namespace platform {

class X11Window {
 public:
  /// Null for a window that is not the X server's or has unusual pixels, and where the server is on
  /// another machine. The window must outlive the object.
  static std::unique_ptr<X11Window> open(SDL_Window* window);
  ~X11Window();
  X11Window(const X11Window&) = delete;
  X11Window& operator=(const X11Window&) = delete;

  /// Shows the given rectangles of the display, which lie where the scaler places the picture. False
  /// when there is no memory for it.
  bool present(Scaler& scaler, const Surface& picture, std::span<const Rect> parts);
  /// Blackens what lies around the picture in a window of this size.
  void showBars(const Rect& picture, Size window);

 private:
  struct Implementation;
  explicit X11Window(std::unique_ptr<Implementation> implementation);
  std::unique_ptr<Implementation> implementation_;
};

}  // namespace platform
