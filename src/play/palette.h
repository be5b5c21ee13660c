// The tool palette, and the switch between build mode and info mode.
#pragma once

#include "play/scene.h"

namespace play {

/// Holds down the keys of the tool in hand, the mode and the view, and no others. Whoever changes one
/// of them calls it.
void holdKeys(Scene& scene);
/// A click on key `index` of the palette takes its tool in hand (core::toolOfKey).
void selectTool(Scene& scene, int index);
/// Build mode; it always begins with the road.
void enterBuildMode(Scene& scene);
void enterInfoMode(Scene& scene);

/// The captions and the tool of a city that was taken over from a file: info mode.
void resetPaletteAfterLoad(Scene& scene);
/// Shows the buttons of the tools that the milestones have unlocked, and hides the others.
void showUnlockedTools(Scene& scene);

}  // namespace play
