// Small doors of the right-hand panel: goals, views, tax rate.
#pragma once

#include "play/scene.h"

namespace play {

/// Shows the goal of the running mode in the notice panel.
void showGoal(Scene& scene);

/// A click on one of the six view buttons, 0..5.
void chooseView(Scene& scene, int view);

/// Five points more, or less, of tax, within 0 and 30.
void raiseTax(Scene& scene);
void lowerTax(Scene& scene);

/// Shows the game menu at its place.
void showGameMenu(Scene& scene);

}  // namespace play
