#include "platform/sdl/x11_window.h"

#include <SDL.h>
#include <SDL_syswm.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XShm.h>
#include <sys/ipc.h>
#include <sys/shm.h>

#include <algorithm>
#include <bit>

namespace platform {

namespace {

// The server reads one band of the buffer while the next is made.
constexpr int kBufferBytes = 4 << 20;
constexpr int kBands = 8;

bool refused = false;

int noteRefusal(::Display*, XErrorEvent*) {
  refused = true;
  return 0;
}

int shiftOf(unsigned long mask) {
  return std::countr_zero(mask);
}

bool isByte(unsigned long mask) {
  return mask == 0xFFul || mask == 0xFF00ul || mask == 0xFF0000ul;
}

}  // namespace

struct X11Window::Implementation {
  ::Display* display = nullptr;
  Window window = 0;
  GC gc = nullptr;
  Visual* visual = nullptr;
  int depth = 0;
  XShmSegmentInfo shared{};
  XImage* image = nullptr;  // lines of the window's width, as many as there is room for
  bool attached = false;
  int used = 0;  // lines that the server may still read

  ~Implementation() {
    releaseBuffer();
    if (gc != nullptr) XFreeGC(display, gc);
  }

  bool makeBuffer(int width);
  void releaseBuffer();
  void presentBand(Scaler& scaler, const Surface& picture, const Rect& band);
};

bool X11Window::Implementation::makeBuffer(int width) {
  releaseBuffer();
  image = XShmCreateImage(display, visual, static_cast<unsigned>(depth), ZPixmap, nullptr, &shared,
                          static_cast<unsigned>(width), 1);
  if (image == nullptr || image->bits_per_pixel != 32 || image->byte_order != LSBFirst)
    return false;
  image->height = std::max(1, kBufferBytes / image->bytes_per_line);
  const auto bytes =
      static_cast<std::size_t>(image->bytes_per_line) * static_cast<std::size_t>(image->height);
  shared.shmid = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
  if (shared.shmid < 0) return false;
  void* const memory = shmat(shared.shmid, nullptr, 0);
  if (memory != reinterpret_cast<void*>(-1)) {
    shared.shmaddr = image->data = static_cast<char*>(memory);
    // A server on another machine answers the request with an error.
    XSync(display, False);
    refused = false;
    const auto before = XSetErrorHandler(noteRefusal);
    attached = XShmAttach(display, &shared) != 0;
    XSync(display, False);
    XSetErrorHandler(before);
    attached = attached && !refused;
  }
  shmctl(shared.shmid, IPC_RMID, nullptr);  // it goes with the last that has it
  return attached;
}

void X11Window::Implementation::releaseBuffer() {
  if (attached) {
    XShmDetach(display, &shared);
    XSync(display, False);
  }
  attached = false;
  used = 0;
  if (shared.shmaddr != nullptr) shmdt(shared.shmaddr);
  shared.shmaddr = nullptr;
  if (image == nullptr) return;
  image->data = nullptr;
  XDestroyImage(image);
  image = nullptr;
}

void X11Window::Implementation::presentBand(Scaler& scaler, const Surface& picture,
                                            const Rect& band) {
  if (used + band.height > image->height) {
    XSync(display, False);  // the server has read all that it was shown
    used = 0;
  }
  PixelMemory memory;
  memory.pixels = reinterpret_cast<std::uint8_t*>(image->data);
  memory.stride = static_cast<std::size_t>(image->bytes_per_line);
  memory.red = shiftOf(image->red_mask);
  memory.green = shiftOf(image->green_mask);
  memory.blue = shiftOf(image->blue_mask);
  memory.top = band.top - used;
  scaler.scale(picture, band, memory);
  XShmPutImage(display, window, gc, image, band.left, used, band.left, band.top,
               static_cast<unsigned>(band.width), static_cast<unsigned>(band.height), False);
  used += band.height;
}

X11Window::X11Window(std::unique_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}
X11Window::~X11Window() = default;

std::unique_ptr<X11Window> X11Window::open(SDL_Window* window) {
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  if (SDL_GetWindowWMInfo(window, &info) != SDL_TRUE || info.subsystem != SDL_SYSWM_X11) {
    return nullptr;
  }
  auto x11 = std::make_unique<Implementation>();
  x11->display = info.info.x11.display;
  x11->window = info.info.x11.window;
  XWindowAttributes attributes;
  if (XShmQueryExtension(x11->display) == 0 ||
      XGetWindowAttributes(x11->display, x11->window, &attributes) == 0) {
    return nullptr;
  }
  x11->visual = attributes.visual;
  x11->depth = attributes.depth;
  if (!isByte(attributes.visual->red_mask) || !isByte(attributes.visual->green_mask) ||
      !isByte(attributes.visual->blue_mask) || !x11->makeBuffer(attributes.width)) {
    return nullptr;
  }
  x11->gc = XCreateGC(x11->display, x11->window, 0, nullptr);
  return std::unique_ptr<X11Window>(new X11Window(std::move(x11)));
}

bool X11Window::present(Scaler& scaler, const Surface& picture, std::span<const Rect> parts) {
  Implementation& x11 = *implementation_;
  const int width = scaler.place().right();
  if (width > x11.image->width && !x11.makeBuffer(width)) return false;
  for (const Rect& part : parts) {
    const int lines = std::max(1, x11.image->height / kBands);
    for (int top = part.top; top < part.bottom(); top += lines) {
      const int height = std::min(lines, part.bottom() - top);
      x11.presentBand(scaler, picture, {part.left, top, part.width, height});
      XFlush(x11.display);
    }
  }
  return true;
}

void X11Window::showBars(const Rect& picture, Size window) {
  Implementation& x11 = *implementation_;
  const Rect bars[] = {
      {0, 0, window.width, picture.top},
      {0, picture.bottom(), window.width, window.height - picture.bottom()},
      {0, picture.top, picture.left, picture.height},
      {picture.right(), picture.top, window.width - picture.right(), picture.height}};
  XSetForeground(x11.display, x11.gc, 0);
  for (const Rect& bar : bars) {
    if (bar.empty()) continue;
    XFillRectangle(x11.display, x11.window, x11.gc, bar.left, bar.top,
                   static_cast<unsigned>(bar.width), static_cast<unsigned>(bar.height));
  }
}

}  // namespace platform
