// The access views: the map coloured by who is reached by a service.
#pragma once

#include <string_view>

#include "map/renderer.h"

namespace map {

/// Rebuilds the pictures of all buildings for the view in `overlayView`, redraws, and clears the dirty
/// marks. View 0 is also what puts the city back on the ground after a load.
void applyOverlayView(Stage& stage);

/// The name of a view, 0..5.
std::string_view viewName(int view);

}  // namespace map
