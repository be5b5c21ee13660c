// Paints a screen onto the framebuffer, and only what has changed since the last time.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/damage.h"
#include "platform/desk.h"
#include "platform/form.h"
#include "platform/skin.h"

namespace platform {

class Painter {
 public:
  Painter(Font& font, const Skin& skin);
  ~Painter();

  /// Brings the framebuffer (800 x 600 units) up to date with the desk's open screen and whatever floats
  /// above it. Returns the rectangles that changed; none when nothing did.
  const DamageList& paint(Surface& framebuffer, Desk& desk, std::int64_t now);

  /// Forgets what has been painted: the next paint is whole.
  void forget() { opened_ = -1; }

 private:
  struct Painted;  // what a control looked like when it was last painted
  struct Floating {
    Rect place{};
    std::uint64_t look = 0;
  };
  struct Held;  // what the desk does with the controls at the moment

  void findCovers(const Form& form);
  void compareChildren(const Form& form, int parent, const Rect& parentPlace, const Rect& clip,
                       const Held& held);
  void compare(const Form& form, int id, const Rect& place, const Rect& clip, const Held& held);
  void forgetShown(const Form& form, int id);
  void compareFloating(Floating& was, const Floating& now);
  void damage(const Rect& rect, std::span<const Rect> covers);

  Font& font_;
  const Skin& skin_;
  int opened_ = -1;  // which opening of a screen is on the framebuffer
  std::vector<Painted> painted_;
  Floating list_, tooltip_, box_;
  std::vector<Rect> covers_;  // boxes that hide what is behind them, the foremost first
  std::size_t covering_ = 0;  // how many of them lie in front of the control that is compared
  DamageList damage_;
};

}  // namespace platform
