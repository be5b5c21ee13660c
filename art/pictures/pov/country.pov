// country.pov -- an open landscape in the map's projection.  The land, its colours
// and what stands where come from tools/country.py, which also asks for the view.
#include "scenery.inc"
#include "stock.inc"
#include "things.inc"
