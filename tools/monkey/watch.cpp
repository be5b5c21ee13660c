#include "monkey/watch.h"

#include <algorithm>

#include "core/missions.h"
#include "core/vocabulary.h"
#include "map/geometry.h"
#include "platform/files.h"
#include "play/game_controls.h"
#include "shell/game_screen.h"
#include "shell/menu_controls.h"
#include "store/record.h"

namespace monkey {

namespace {

namespace timer = core::game_timer;
namespace ui = play::game_control;

std::string nameOf(const platform::Control& control) {
  const int index = control.design->index;
  return std::string(control.design->name) +
         (index == platform::kSingle ? "" : " " + std::to_string(index));
}

/// n / 2, a half to the nearest even number.
int halfOf(int n) {
  const int low = n >> 1;
  return low + ((n & 1) & (low & 1));
}

int maintenanceOf(const core::GameState& game) {
  int sum = 0;
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      const int code = game.tileCode(x, y);
      if (code == core::kFarmCode) sum += 20;
      if (code == core::kDoctorCode || (core::serviceOfCode(code) != 0 && code % 10 == 1))
        sum += 50;
    }
  }
  return sum;
}

}  // namespace

void Watch::begin(driver::Session& session) {
  session_ = &session;
  opened_ = -1;
}

void Watch::newScreen() {
  opened_ = session_->program().desk().opened();
  spoilt_ = stale_ = false;
  onSince_.fill(-1);
  loading_.clear();
  loadingRecord_ = nullptr;
  walked_.clear();
  nextId_ = -1;
  if (game() == nullptr) return;
  ++tally_.games[waiting() ? 0 : values().gMission.whole()];
  tickOfMonth_ = game()->tickOfMonth;
  month_ = game()->month;
  taxRate_ = game()->taxRate;
  const core::Mission* mission = core::missionOf(values().gMission);
  if (!waiting() && mission != nullptr && !mission->founds) {
    spoilt_ = mischief_.spoilt("mission" + std::to_string(values().gMission.whole()) + ".dat");
  }
}

int Watch::stretch() {
  return game() != nullptr && on(timer::Timer3) ? 1 : 50;
}

void Watch::before() {
  saving_.clear();
  if (game() == nullptr) return;
  const platform::Form& form = screen()->form();
  if (!form[ui::framesave].visible) return;
  const platform::ListContent& list = *form[ui::File2].list;
  if (!form[ui::txtsavename].text.empty()) {
    saving_ = std::string(form[ui::txtsavename].text.view()) + ".sav";
  } else if (list.selected >= 0) {
    saving_ = list.items[list.selected];
  }
}

void Watch::step() {
  if (screen() == nullptr) return;
  if (opened_ != session_->program().desk().opened()) newScreen();
  if (game() != nullptr) {
    watchTick();
    watchLoad();
    watchWalkers();
    const auto begun = [this](int id) { return onSince_[id] < 0 && on(id); };
    if (onSince_[timer::Timer8] >= 0 && !on(timer::Timer8)) {
      ++tally_.losses;
      stale_ = true;
    }
    if (begun(timer::Timer11)) ++tally_.failed;
    if (begun(timer::Timer12)) ++tally_.quakes;
    if (begun(timer::Timer15)) ++tally_.solved;
    if (sound()) {
      tally_.mostPeople = std::max<double>(tally_.mostPeople, game()->population);
    }
    if (begun(timer::Timer9)) {
      ++tally_.won;
      mischief_.saved("mission" + std::to_string(values().gMission.whole()) + ".dat", spoilt_);
    }
  }
  watchAges();
}

void Watch::after(bool dear) {
  step();
  if (screen() == nullptr) return;
  if (game() == nullptr) {
    watchMenu();
    return;
  }
  watchSave();
  watchGameTimers();
  watchGameControls();
  if (!sound()) return;
  if (game()->nextBuildingId > nextId_ || game()->taxRate != taxRate_) stale_ = false;
  taxRate_ = game()->taxRate;
  watchIds();
  wrong(cityFault(*game(), values(), stale_ || onSince_[timer::Timer8] >= 0));
  if (dear && values().gMission != 16) {
    int apartments = 0;
    for (int y = 0; y <= core::kLastCell; ++y) {
      for (int x = 0; x <= core::kLastCell; ++x) apartments += game()->tileImage(x, y) == 3;
    }
    tally_.mostApartments = std::max(tally_.mostApartments, apartments);
  }
  if (dear && !coverFits(*game())) wrong("an effect area is not that of the buildings");
}

/// A load that has ended must have left what the file holds.
void Watch::watchLoad() {
  const platform::Form& form = screen()->form();
  // A second press on Load may come before the first has been carried out, with another name.
  const void* record = static_cast<shell::GameScreen*>(screen())->waitingRecord().get();
  if (on(timer::Timer3) && record != loadingRecord_) {
    loadingRecord_ = record;
    const platform::ListContent& list = *form[ui::File1].list;
    if (list.selected < 0) return wrong("a load without a name");
    loading_ = list.items[list.selected];
    loadingSpoilt_ = mischief_.spoilt(loading_);
    std::string error;
    const std::string path = session_->folder() + "/" + loading_;
    if (!platform::readFile(path, loadingText_, error)) wrong("loaded without a file: " + error);
  } else if (!on(timer::Timer3) && !loading_.empty()) {
    ++(loadingSpoilt_ ? tally_.spoiltLoads : tally_.loads);
    spoilt_ = loadingSpoilt_;
    stale_ = false;
    walked_.clear();
    nextId_ = -1;
    // A collapse or a loss of buildings in the same moment acts on the loaded city.
    if (onSince_[timer::Timer8] < 0 && onSince_[timer::Timer12] < 0) {
      const std::string fault = loadFault(loadingText_, *game(), values());
      if (!fault.empty()) wrong(loading_ + ": " + fault);
    }
    loading_.clear();
    loadingRecord_ = nullptr;
    tickOfMonth_ = game()->tickOfMonth;
    month_ = game()->month;
  }
}

/// What the game tick leaves behind.
void Watch::watchTick() {
  const double tick = game()->tickOfMonth;
  const double month = game()->month;
  if (tick == tickOfMonth_) return;
  const bool sameMonth = month == month_;
  tickOfMonth_ = tick;
  month_ = month;
  if (!sound() || !loading_.empty()) return;
  const auto busy = [this](int id) { return on(id) || onSince_[id] >= 0; };
  if (busy(timer::Timer8) || busy(timer::Timer12) || busy(timer::Timer13)) return;
  if (game()->maintenancePerMonth != maintenanceOf(*game())) {
    wrong("maintenancePerMonth is not that of the map");
  }
  if (sameMonth && game()->population > game()->housingCapacity) {
    wrong("more people than houses");
  }
  const int column = game()->historyIndex.whole();
  if (game()->history(column, 1) != game()->population) wrong("the history has other people");
}

/// Timers that switch themselves off do so in time.
void Watch::watchAges() {
  const std::int64_t now = session_->clock().milliseconds();
  const platform::Timers& timers = screen()->timers();
  for (int id = 0; id < timers.count(); ++id) {
    std::int64_t& since = onSince_[id];
    if (!timers.enabled(id)) {
      since = -1;
      continue;
    }
    if (since < 0) since = now;
    int ticks = 0;  // it may live for; 0: for ever
    if (game() == nullptr) {
      ticks = id <= shell::menu_timer::Timer4 ? 1 : 0;
    } else {
      for (const int once : {timer::Timer3, timer::Timer8, timer::Timer9, timer::Timer10,
                             timer::Timer11, timer::Timer15}) {
        if (id == once) ticks = 1;
      }
      if (id == timer::Timer12) ticks = 60;
    }
    if (ticks > 0 && now - since > ticks * timers.interval(id)) {
      wrong(std::string(timers.name(id)) + " runs on and on");
    }
  }
}

void Watch::watchGameTimers() {
  const platform::Form& form = screen()->form();
  const bool loading = on(timer::Timer3) || waiting();
  const auto must = [&](bool holds, const char* what) {
    if (!holds) wrong(std::string("timers: ") + what);
  };
  must(on(timer::Timer1), "Timer1 is off");
  must(on(timer::Timer2) || waiting() || on(timer::Timer9), "Timer2 is off");
  must(!on(timer::Timer2) || !waiting(), "Timer2 runs while a game is chosen");
  must(on(timer::Timer3) == form[ui::Frametoload].visible, "Timer3 and its notice differ");
  must(on(timer::Timer5) != loading, "Timer5 and the load differ");
  must(on(timer::Timer4) || !form[ui::haber].visible, "a banner without Timer4");
  must(!on(timer::Timer10) || waiting(), "Timer10 without a cancelled load");
  const platform::ListContent& music = *form[ui::Combo1].list;
  must(on(timer::Timer100) == (music.selected >= 0 && music.selected != 1),
       "Timer100 and the music list differ");
  if (!sound()) return;
  const double mission = values().gMission;
  must(!on(timer::Timer6) || game()->walkersOn == 1, "Timer6 without walkers");
  must(on(timer::Timer7) == (game()->walkersOn == 1), "Timer7 and the walkers differ");
  must(on(timer::Timer13) == (mission == 16), "Timer13 and the demonstration differ");
  must(on(timer::Timer14) || on(timer::Timer15) || mission < 20 || loading,
       "Timer14 is off in a puzzle");
  must(on(timer::Timer4) || game()->newsTicks == 0, "news without Timer4");
  must(game()->newsTicks >= 0 && game()->newsTicks < 15, "newsTicks has run away");
}

void Watch::watchGameControls() {
  struct Place {
    int control, left, top;
  };
  constexpr Place kPlaces[] = {
      {ui::tileinfo, 642, 347},  {ui::statusframe, 75, 85},   {ui::showpref, 200, 200},
      {ui::gamemenu, 250, 210},  {ui::framesave, 230, 166},   {ui::frameload, 230, 178},
      {ui::frameload, 280, 128}, {ui::Frametoload, 276, 264}, {ui::bilgi, 200, 200},
      {ui::mscompfrm, 200, 200}, {ui::Frame13, 100, 520},     {ui::Frame20, 623, 0},
      {ui::Frame21, 100, 560},
  };
  const platform::Form& form = screen()->form();
  const core::GameState& g = *game();
  for (int id = 0; id < form.count(); ++id) {
    const platform::Rect place = form[id].place;
    const platform::Rect design = form[id].design->place;
    if (id == ui::picScroll || place == design) continue;
    bool allowed = false;
    for (const Place& p : kPlaces) {
      if (p.control == id && place == platform::Rect{p.left, p.top, design.width, design.height}) {
        allowed = true;
      }
    }
    if (!allowed) wrong("out of its place: " + nameOf(form[id]));
  }
  const platform::Rect map = form[ui::picScroll].place;
  const platform::Point rest{map::kRestingPlace.left - g.scrollX,
                             map::kRestingPlace.top - g.scrollY};
  // A load puts the map to its rest in the middle of a shake, until the next one.
  const bool shaken = on(timer::Timer12) && map.left == rest.x - 32;
  if ((map.left != rest.x && !shaken) || map.top != rest.y) {
    wrong("the map has slid elsewhere than scrollX and scrollY say");
  }
  if (rest.x < -1360 || rest.x > -16 || rest.y < -452 || rest.y > 28) {
    wrong("the map has slid too far");
  }
  const bool pointerless = g.currentTool == core::kInfoTool ||
                           values().gMission == core::kDemonstration || !on(timer::Timer5);
  for (int n = 0; n < 8 && pointerless; ++n) {
    if (form[ui::Line1 + n].visible) wrong("a cursor where none belongs");
  }
}

void Watch::watchMenu() {
  const platform::Form& form = screen()->form();
  if (!on(shell::menu_timer::Timer5)) wrong("timers: the menu's Timer5 is off");
  for (int id = 0; id < form.count(); ++id) {
    const platform::Rect place = form[id].place;
    const platform::Rect design = form[id].design->place;
    const platform::Rect centred{halfOf(800 - design.width), halfOf(600 - design.height),
                                 design.width, design.height};
    if (place != design && place != centred) wrong("out of its place: " + nameOf(form[id]));
  }
}

/// A cell's id changes only when something new is built there, and is never taken away.
void Watch::watchIds() {
  const core::GameState& g = *game();
  const bool known = nextId_ >= 0;
  for (int y = 0; y <= core::kLastCell && known; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      const double id = g.buildingId(x, y);
      if (id == ids_(x, y)) continue;
      const bool built = id >= nextId_ && id < g.nextBuildingId;
      if (!built) {
        wrong("the id of a cell has changed at " + std::to_string(x) + "," + std::to_string(y) +
              " from " + std::to_string(ids_(x, y)) + " to " + std::to_string(id));
      }
    }
  }
  ids_ = g.buildingId;
  nextId_ = g.nextBuildingId;
}

/// Notes whether what was saved is spoilt.
void Watch::watchSave() {
  if (saving_.empty() || screen()->form()[ui::framesave].visible) return;
  std::string text;
  std::string error;
  std::string now;
  if (!platform::readFile(session_->folder() + "/" + saving_, text, error)) return;
  store::composeRecord(*game(), values(), now);
  if (now == text) mischief_.saved(saving_, spoilt_ || waiting());
}

}  // namespace monkey
