// What the keys of the side panel show and change: goals, views, tax rate, game menu.
#pragma once

#include "play/scene.h"

namespace play {

/// Shows the goal of the running mode in the notice panel.
void showGoal(Scene& scene);

/// A click on one of the six view buttons, 0..5.
void chooseView(Scene& scene, int view);

/// Shows the legend of the access views at its place.
void showLegend(Scene& scene);

/// Five points more, or less, of tax, within 0 and 30.
void raiseTax(Scene& scene);
void lowerTax(Scene& scene);

/// Shows the game menu at its place.
void showGameMenu(Scene& scene);

}  // namespace play
