#include "scenario/outcome.h"

namespace scenario {

void endRun(play::Scene& scene, const char* outcome, int wayBack) {
  namespace ui = play::ui;
  namespace timer = play::timer;
  scene.text(ui::Command4).assign(outcome);
  scene.form.moveTo(ui::mscompfrm, 200, 200);
  scene.form.show(ui::mscompfrm);
  scene.timers.enable(wayBack);
  // A level is judged once, and the clock stops for a mission won, whose city has been handed over.
  // All other timers live on: after a defeat or a level months may roll, and a load may come through.
  scene.timers.disable(timer::Timer14);
  if (wayBack == timer::Timer9) scene.timers.disable(timer::Timer2);
}

}  // namespace scenario
