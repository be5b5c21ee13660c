// Which presses of the mouse count, where real fingers press.
//
// Any button is as good as any other, and each press is one of its own: the last button that went
// down is the one whose release counts, so a release that is lost blocks nothing. A click that was
// meant for the old screen must not reach what has just come up under the pointer, so a fresh screen
// takes no press for a while, and no release of a button that went down before.
#pragma once

#include <cstdint>

namespace platform {

class Presses {
 public:
  /// Milliseconds for which a fresh screen takes no press: two quick clicks lie closer together.
  static constexpr std::int64_t kSettling = 400;

  /// Another screen has come up. Times are milliseconds of a clock that never stops.
  void screenOpened(std::int64_t now) {
    ready_ = now + kSettling;
    held_ = 0;
  }
  /// A button went down; returns whether that is a press. Buttons are numbered from 1.
  bool down(int button, std::int64_t now) {
    held_ = now < ready_ ? 0 : button;
    return held_ != 0;
  }
  /// A button went up; returns whether that ends the press.
  bool up(int button) {
    if (held_ != button) return false;
    held_ = 0;
    return true;
  }

 private:
  std::int64_t ready_ = 0;
  int held_ = 0;
};

}  // namespace platform
