// Paints a screen onto the framebuffer, and only what has changed since the last time.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/damage.h"
#include "platform/desk.h"
#include "platform/form.h"

namespace platform {

class Painter {
 public:
  explicit Painter(Font& font) : font_(font) {}

  /// Brings the framebuffer (800 x 600) up to date with the desk's open screen and whatever floats
  /// above it. Returns the rectangles that changed; none when nothing did.
  const DamageList& paint(Surface& framebuffer, Desk& desk, std::int64_t now);

  /// Forgets what has been painted: the next paint is whole.
  void forget() { form_ = nullptr; }

 private:
  struct Painted;  // what a control looked like when it was last painted

  Font& font_;
  const Form* form_ = nullptr;
  std::vector<Painted> painted_;
  DamageList damage_;
};

}  // namespace platform
