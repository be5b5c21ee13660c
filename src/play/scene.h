// What the handlers of the game screen work on: the game, its screen, its timers, its map surface.
#pragma once

#include <string_view>

#include "core/game_state.h"
#include "core/game_timers.h"
#include "map/renderer.h"
#include "platform/desk.h"
#include "platform/form.h"
#include "platform/media.h"
#include "platform/timers.h"
#include "play/game_controls.h"
#include "sound/cues.h"

namespace play {

namespace ui = game_control;
namespace timer = core::game_timer;

struct Scene {
  core::GameState& game;
  core::ProgramValues& values;
  platform::Form& form;
  platform::Timers& timers;
  map::Stage& stage;
  platform::Desk& desk;
  platform::Media& media;

  /// Plays a cue if the player wants sound effects.
  void cue(sound::Cue which) {
    if (values.gSoundOn == 1) media.playCue(which);
  }
  platform::Text& text(int control) { return form[control].text; }
};

/// Puts a message on the banner; it comes up within a quarter of a second and goes by itself.
void say(Scene& scene, std::string_view message);
/// One quarter second of the banner.
void bannerTick(Scene& scene);
/// Shows the notice panel `bilgi` with the text of `bilgilabel`.
void showNotice(Scene& scene);
/// Hides the eight lines of the cursor.
void hideCursor(Scene& scene);

}  // namespace play
