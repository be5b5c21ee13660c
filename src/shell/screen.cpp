#include "shell/screen.h"

#include "shell/services.h"

namespace shell {

Screen::Screen(std::span<const platform::ControlDesign> controls, const char* background,
               std::span<const platform::TimerDesign> timers, const ImageSet& images,
               platform::Clock& clock)
    : form_(controls, background, [&images](std::string_view name) { return images.find(name); }),
      timers_(timers, clock) {}

}  // namespace shell
