// Gives the X screen another size: resize_screen WIDTH HEIGHT
#include <X11/extensions/Xrandr.h>

#include <cstdlib>
#include <string>

int main(int argc, char** argv) {
  Display* const display = XOpenDisplay(nullptr);
  if (argc < 3 || display == nullptr) return 2;
  const auto width = static_cast<unsigned>(std::atoi(argv[1]));
  const auto height = static_cast<unsigned>(std::atoi(argv[2]));
  const Window root = DefaultRootWindow(display);
  XRRScreenResources* const screen = XRRGetScreenResources(display, root);
  std::string name = std::to_string(width) + "x" + std::to_string(height);
  XRRModeInfo mode{};
  mode.name = name.data();
  mode.nameLength = static_cast<unsigned>(name.size());
  mode.width = mode.hSyncStart = mode.hSyncEnd = mode.hTotal = width;
  mode.height = mode.vSyncStart = mode.vSyncEnd = mode.vTotal = height;
  mode.dotClock = 60UL * width * height;
  const RRMode id = XRRCreateMode(display, root, &mode);
  XRRAddOutputMode(display, screen->outputs[0], id);
  const auto use = [&](RRMode wanted, int outputs) {
    XRRSetCrtcConfig(display, screen, screen->crtcs[0], CurrentTime, 0, 0, wanted, RR_Rotate_0,
                     screen->outputs, outputs);
  };
  use(None, 0);
  XRRSetScreenSize(display, root, static_cast<int>(width), static_cast<int>(height), 300, 200);
  use(id, 1);
  XSync(display, False);
}
