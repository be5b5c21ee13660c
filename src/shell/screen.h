// One of the program's two screens: its controls, its timers, and the handlers that answer them.
#pragma once

#include "core/game_state.h"
#include "platform/desk.h"
#include "platform/form.h"
#include "platform/timers.h"

namespace shell {

class ImageSet;

class Screen : public platform::FormListener {
 public:
  Screen(std::span<const platform::ControlDesign> controls, const char* background,
         std::span<const platform::TimerDesign> timers, const ImageSet& images,
         platform::Clock& clock);

  virtual const char* name() const = 0;
  /// One tick of a timer of this screen.
  virtual void tick(int timer) = 0;
  /// The game that runs on this screen, or null.
  virtual core::GameState* game() { return nullptr; }
  virtual platform::Canvas* canvas() { return nullptr; }

  platform::Form& form() { return form_; }
  platform::Timers& timers() { return timers_; }

 private:
  platform::Form form_;
  platform::Timers timers_;
};

}  // namespace shell
