#include "play/status_report.h"

#include "core/number_text.h"
#include "play/panels.h"
#include "sim/history.h"

namespace play {

namespace {

constexpr int kLegend = ui::Frame13;
constexpr int kColumns = 4;

struct Column {
  int heading;
  int values;
};
constexpr Column kColumnControls[kColumns] = {{ui::mon1lbl, ui::stlbl1},
                                              {ui::mon2lbl, ui::stlbl2},
                                              {ui::mon3lbl, ui::stlbl3},
                                              {ui::mon4lbl, ui::stlbl4}};

void writeHeading(Scene& scene, int control, int monthsBack) {
  double month = scene.game.month - monthsBack;
  double year = scene.values.gYear;
  if (month <= 0) {
    month += 12;
    year -= 1;
  }
  platform::Text& text = scene.text(control);
  core::setCaption(text, "", month, "/");
  text.append(core::NumberText(year));
}

}  // namespace

void fillStatusReport(Scene& scene) {
  const core::GameState& game = scene.game;
  const int current = game.historyIndex.whole();
  const int filled = current < kColumns ? current : kColumns;
  for (int n = 0; n < filled; ++n) {
    const int monthsBack = filled - 1 - n;
    writeHeading(scene, kColumnControls[n].heading, monthsBack);
    for (int row = 1; row <= ui::kReportRows; ++row) {
      core::setCaption(scene.text(kColumnControls[n].values + row - 1), "",
                       game.history(current - monthsBack, row));
    }
  }
}

void openStatusReport(Scene& scene) {
  scene.cue(sound::kClick);
  core::setCaption(scene.text(ui::showtaxrate), "", scene.game.taxRate);
  sim::writeHistory(scene.game, scene.values);
  fillStatusReport(scene);
  // The ratings come after the columns: what is shown of them is the last tick's.
  sim::rateServices(scene.game, scene.game);
  scene.form.moveTo(ui::statusframe, 75, 85);
  scene.form.show(ui::statusframe);
  scene.form.hide(kLegend);
}

void closeStatusReport(Scene& scene) {
  scene.form.hide(ui::statusframe);
  if (scene.game.overlayView != 0) showLegend(scene);
}

}  // namespace play
