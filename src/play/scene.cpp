#include "play/scene.h"

namespace play {

namespace {
constexpr int kBanner = ui::haber;
constexpr int kNotice = ui::bilgi;
constexpr int kBannerTicks = 15;  // of 250 ms; the first one brings the banner up
}  // namespace

void say(Scene& scene, std::string_view message) {
  scene.text(kBanner).assign(message);
  scene.timers.enable(timer::Timer4);
}

void bannerTick(Scene& scene) {
  // Deliberate: a second message does not restart the count, and gets only what is left of the first
  // one's time. The count is also kept through a save and a load.
  scene.game.newsTicks += 1;
  if (!scene.form[kBanner].visible) scene.form.show(kBanner);
  if (scene.game.newsTicks >= kBannerTicks) {
    scene.form.hide(kBanner);
    scene.game.newsTicks = 0;
    scene.timers.disable(timer::Timer4);
  }
}

void showNotice(Scene& scene) {
  scene.form.moveTo(kNotice, 200, 200);
  scene.form.show(kNotice);
}

void hideCursor(Scene& scene) {
  for (int n = 0; n < 8; ++n) scene.form.hide(ui::Line1 + n);
}

}  // namespace play
