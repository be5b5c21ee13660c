#include "sim/rebuild.h"

#include "sim/coverage.h"
#include "sim/flood.h"
#include "sim/residences.h"

namespace sim {

void rebuildCity(core::City& city, const Rebuild& steps) {
  rebuildCoverage(city);
  if (steps.flood) floodServices(city, steps.placed);
  rebuildCapacity(city);
  if (steps.evolve) evolveResidences(city);
}

}  // namespace sim
