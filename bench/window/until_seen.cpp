// Runs a command and says when a pixel of the screen has changed: until_seen X Y COMMAND ...
//
// Prints the milliseconds from the start of the command to the new colour, those that its first thread
// has had a processor for, and its process id; it goes on running. A command that changes nothing within ten seconds ends it with 1.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

unsigned long colourAt(Display* display, int x, int y) {
  XImage* const image =
      XGetImage(display, DefaultRootWindow(display), x, y, 1, 1, AllPlanes, ZPixmap);
  const unsigned long colour = XGetPixel(image, 0, 0);
  XDestroyImage(image);
  return colour;
}

double processorTime(pid_t process) {
  const std::string path = "/proc/" + std::to_string(process) + "/schedstat";
  std::FILE* const file = std::fopen(path.c_str(), "r");
  double nanoseconds = 0;
  if (file == nullptr || std::fscanf(file, "%lf", &nanoseconds) != 1) nanoseconds = 0;
  if (file != nullptr) std::fclose(file);
  return nanoseconds / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
  using Clock = std::chrono::steady_clock;
  Display* const display = XOpenDisplay(nullptr);
  if (argc < 4 || display == nullptr) {
    std::fprintf(stderr, "usage: until_seen X Y COMMAND ...\n");
    return 2;
  }
  const int x = std::atoi(argv[1]);
  const int y = std::atoi(argv[2]);
  const unsigned long before = colourAt(display, x, y);
  const auto start = Clock::now();
  const pid_t child = fork();
  if (child == 0) {
    close(ConnectionNumber(display));
    close(STDOUT_FILENO);  // who reads the answer does not wait for the command
    execvp(argv[3], argv + 3);
    _exit(127);
  }
  for (;;) {
    const double passed = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    if (colourAt(display, x, y) != before) {
      std::printf("%.1f %.1f %d\n", passed, processorTime(child), static_cast<int>(child));
      return 0;
    }
    if (passed > 10000) return 1;
    usleep(500);
  }
}
