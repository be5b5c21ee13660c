#include "play/scene.h"

namespace play {

namespace {
constexpr int kBannerTicks = 15;  // of 250 ms; the first one brings the banner up
}

void say(Scene& scene, std::string_view message) {
  scene.text(ui::haber).assign(message);
  scene.timers.enable(timer::Timer4);
}

void bannerTick(Scene& scene) {
  // The count is not begun anew by a second message: it shares the time left of the first. It also
  // outlives a save and a load.
  scene.game.newsTicks += 1;
  if (!scene.form[ui::haber].visible) scene.form.show(ui::haber);
  if (scene.game.newsTicks >= kBannerTicks) {
    scene.form.hide(ui::haber);
    scene.game.newsTicks = 0;
    scene.timers.disable(timer::Timer4);
  }
}

void showNotice(Scene& scene) {
  scene.form.moveTo(ui::bilgi, 200, 200);
  scene.form.show(ui::bilgi);
}

void hideCursor(Scene& scene) {
  for (int n = 0; n < 8; ++n) scene.form.hide(ui::Line1 + n);
}

}  // namespace play
