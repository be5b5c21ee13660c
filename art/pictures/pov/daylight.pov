// daylight.pov -- white ground in the open: the light that painted ground is divided by.
#include "scenery.inc"
plane { z, 0 GroundMat(pigment { rgb 1 }) }
