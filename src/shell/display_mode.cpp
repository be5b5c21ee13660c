#include "shell/display_mode.h"

#include "shell/program.h"

namespace shell {

namespace {

constexpr const char* kTitle = "Error";
constexpr const char* kCannotChange =
    "Vellmoran can not change resolution,be sure your system supports 800x600x16 resolution,if it "
    "does,change resolution manually before launching Vellmoran ";
// The two texts differ in one blank only, which distinguishes the two failures.
constexpr const char* kCannotRestore =
    "Vellmoran can not restore your original screen resolution,please change it manually ";
constexpr const char* kCannotRestoreOther =
    " Vellmoran can not restore your original screen resolution,please change it manually ";

}  // namespace

bool enterDisplayMode(Program& program) {
  platform::Display& display = program.services().display;
  core::ProgramValues& values = program.values();
  if (values.gResolutionSaved == 0) {
    // Later loads find the program's own size, which must not be taken for the player's.
    const platform::Size size = display.size();
    values.gScreenW = size.width;
    values.gScreenH = size.height;
    values.gResolutionSaved = 1;
  }
  if (display.change({platform::kScreenWidth, platform::kScreenHeight}) == 0) return true;
  display.message(kTitle, kCannotChange);
  program.end(1);
  return false;
}

void leaveDisplayMode(Program& program) {
  platform::Display& display = program.services().display;
  const core::ProgramValues& values = program.values();
  const int result = display.change({values.gScreenW, static_cast<int>(values.gScreenH)});
  if (result == 0) {
    program.end(0);
    return;
  }
  display.message(kTitle, result == 1 ? kCannotRestore : kCannotRestoreOther);
  program.end(1);
}

}  // namespace shell
