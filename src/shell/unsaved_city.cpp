#include "shell/unsaved_city.h"

#include <cstdio>

#include "core/missions.h"
#include "shell/program.h"
#include "store/record.h"

namespace shell {

bool keepUnsavedCity(Program& program) {
  const core::ProgramValues& values = program.values();
  const core::GameState* const game =
      program.screen() != nullptr ? program.screen()->game() : nullptr;
  if (game == nullptr || values.gLoadPending == 1) return false;
  if (values.gMission == core::kDemonstration) return false;
  std::string error;
  const std::string path = program.services().programFolder + "/" + kUnsavedCity;
  if (store::saveGame(path, *game, values, error)) return true;
  // There is no screen left that could show it.
  std::fprintf(stderr, "vellmoran: %s\n", error.c_str());
  return false;
}

}  // namespace shell
