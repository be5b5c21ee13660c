#include "driver/commands.h"

#include <array>
#include <charconv>
#include <optional>
#include <vector>

#include "driver/describe.h"
#include "driver/state_names.h"
#include "platform/png.h"

namespace driver {

namespace {

using Words = std::vector<std::string_view>;

struct Call {
  Session& session;
  Words words;            // what follows the command
  std::string_view rest;  // the same, as written in the line

  platform::Desk& desk() { return session.program().desk(); }
  platform::Form* form() {
    shell::Screen* screen = session.program().screen();
    return screen != nullptr ? &screen->form() : nullptr;
  }
  State state() {
    shell::Screen* screen = session.program().screen();
    return {screen != nullptr ? screen->game() : nullptr, &session.program().values()};
  }
};

std::string ok() {
  return "ok";
}
std::string ok(std::string_view value) {
  return "ok " + std::string(value);
}
std::string error(std::string_view why) {
  return "error " + std::string(why);
}

Words split(std::string_view text) {
  Words words;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    if (end > at) words.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return words;
}

template <class T>
std::optional<T> number(std::string_view word) {
  T value{};
  const auto result = std::from_chars(word.data(), word.data() + word.size(), value);
  if (result.ec != std::errc() || result.ptr != word.data() + word.size()) return {};
  if (!(value - value == 0)) return {};
  return value;
}

std::string realNumber(double value) {
  std::array<char, 40> text;
  const auto result = std::to_chars(text.data(), text.data() + text.size(), value + 0.0);
  return {text.data(), result.ptr};
}

// --- time and pointer ---

std::string advance(Call& call) {
  const auto ms = call.words.size() == 1 ? number<std::int64_t>(call.words[0]) : std::nullopt;
  if (!ms || *ms < 0) return error("takes a number of milliseconds");
  call.session.advance(*ms);
  return ok();
}

bool screenPoint(const Words& words, platform::Point& point) {
  const auto x = words.size() == 2 ? number<int>(words[0]) : std::nullopt;
  const auto y = words.size() == 2 ? number<int>(words[1]) : std::nullopt;
  if (!x || !y || *x < 0 || *x > 799 || *y < 0 || *y > 599) return false;
  point = {*x, *y};
  return true;
}

constexpr std::string_view kWantsPoint = "takes a pixel, 0..799 and 0..599";

std::string pointer(Call& call) {
  platform::Point point;
  if (!screenPoint(call.words, point)) return error(kWantsPoint);
  call.session.pointer(point.x, point.y);
  return ok();
}

std::string press(Call& call) {
  const std::string moved = pointer(call);
  if (moved == "ok") call.session.press();
  return moved;
}

std::string release(Call& call) {
  call.session.release();
  return ok();
}

/// A control by name and, if a number follows, index; -1 with the reason in `why`.
int findControl(Call& call, std::string& why) {
  if (call.words.empty() || call.words.size() > 2) {
    why = "takes the name of a control, and an index";
    return -1;
  }
  platform::Form* form = call.form();
  if (form == nullptr) {
    why = "the program has ended";
    return -1;
  }
  int index = platform::kSingle;
  if (call.words.size() == 2) {
    const auto given = number<int>(call.words[1]);
    if (!given) {
      why = "the index is no number";
      return -1;
    }
    index = *given;
  }
  const int id = form->find(call.words[0], index);
  if (id < 0) why = "no control named " + std::string(call.rest);
  return id;
}

/// The middle of a control that can be clicked there.
bool middleOf(Call& call, platform::Point& point, std::string& why) {
  const int id = findControl(call, why);
  if (id < 0) return false;
  platform::Form& form = *call.form();
  if (!form.shown(id)) {
    why = "hidden";
    return false;
  }
  const platform::Rect place = form.onScreen(id);
  point = {place.left + place.width / 2, place.top + place.height / 2};
  if (point.x < 0 || point.x > 799 || point.y < 0 || point.y > 599) {
    why = "off the screen";
    return false;
  }
  if (call.desk().box() != nullptr) {
    why = "covered by a message box";
    return false;
  }
  const int top = call.desk().topmost(point);
  if (top != id) {
    why = top < 0 ? "out of sight" : "covered by " + controlName(form, top);
    return false;
  }
  return true;
}

std::string clickAt(Call& call, platform::Point point) {
  call.session.pointer(point.x, point.y);
  call.session.press();
  call.session.release();
  return ok();
}

std::string click(Call& call) {
  platform::Point point;
  if (screenPoint(call.words, point)) return clickAt(call, point);
  if (call.words.size() == 1 && call.words[0] == "OK") {
    const platform::MessageBox* box = call.desk().box();
    if (box == nullptr) return error("no message box");
    const platform::Rect button =
        platform::Desk::boxButton(platform::Desk::boxPlace(*box, call.session.font()));
    return clickAt(call, {button.left + button.width / 2, button.top + button.height / 2});
  }
  std::string why;
  if (!middleOf(call, point, why)) return error(why);
  return clickAt(call, point);
}

std::string hover(Call& call) {
  platform::Point point;
  std::string why;
  if (!middleOf(call, point, why)) return error(why);
  call.session.pointer(point.x, point.y);
  return ok();
}

std::string choose(Call& call) {
  if (call.words.size() < 2) return error("takes a list and an entry");
  const std::string_view entry = call.rest.substr(call.words[0].size() + 1);
  Call named{call.session, {call.words[0]}, call.words[0]};
  std::string why;
  const int id = findControl(named, why);
  if (id < 0) return error(why);
  if (!call.form()->shown(id)) return error("hidden");
  if (call.desk().box() != nullptr) return error("covered by a message box");
  if (!call.desk().choose(id, entry)) return error("no such entry");
  call.session.program().settle();
  return ok();
}

std::string type(Call& call) {
  if (call.desk().focus() < 0) return error("no text box has the focus");
  call.desk().type(call.rest);
  call.session.program().settle();
  return ok();
}

/// Takes a word such as "Ctrl+" off the front of a key's name.
bool takePrefix(std::string_view& name, std::string_view prefix) {
  if (!name.starts_with(prefix)) return false;
  name.remove_prefix(prefix.size());
  return true;
}

std::string key(Call& call) {
  struct Named {
    std::string_view name;
    platform::Key key;
    bool withControl = false;
  };
  constexpr Named kKeys[] = {
      {"Backspace", platform::Key::backspace},
      {"Enter", platform::Key::enter},
      {"Escape", platform::Key::escape},
      {"Left", platform::Key::left},
      {"Right", platform::Key::right},
      {"Home", platform::Key::home},
      {"End", platform::Key::end},
      {"Delete", platform::Key::deleteForward},
      {"A", platform::Key::selectAll, true},
      {"C", platform::Key::copy, true},
      {"X", platform::Key::cut, true},
      {"V", platform::Key::paste, true},
  };
  std::string_view name = call.rest;
  platform::Modifiers held;
  held.control = takePrefix(name, "Ctrl+");
  held.shift = takePrefix(name, "Shift+");
  for (const Named& named : kKeys) {
    if (name != named.name || (named.withControl && !held.control)) continue;
    call.desk().key(named.key, held);
    call.session.program().settle();
    return ok();
  }
  return error("no such key");
}

// --- looking ---

std::string screen(Call& call) {
  shell::Screen* screen = call.session.program().screen();
  return ok(screen != nullptr ? screen->name() : "none");
}

bool indices(std::span<const std::string_view> words, std::vector<int>& into) {
  for (const std::string_view word : words) {
    const auto n = number<int>(word);
    if (!n) return false;
    into.push_back(*n);
  }
  return true;
}

std::string get(Call& call) {
  std::vector<int> at;
  if (call.words.empty()) return error("takes a name");
  if (!indices(std::span(call.words).subspan(1), at)) return error("an index is no number");
  double value = 0;
  std::string why;
  if (!getValue(call.state(), call.words[0], at, value, why)) return error(why);
  return ok(realNumber(value));
}

std::string grid(Call& call) {
  std::vector<int> at;
  if (call.words.empty() || !indices(std::span(call.words).subspan(1), at)) {
    return error("takes a grid, and a layer");
  }
  at.push_back(0);
  at.push_back(0);
  std::string line;
  std::string why;
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      at[at.size() - 2] = x;
      at[at.size() - 1] = y;
      double value = 0;
      if (!getValue(call.state(), call.words[0], at, value, why)) return error(why);
      if (!line.empty()) line += ' ';
      line += realNumber(value);
    }
  }
  return ok(line);
}

std::string control(Call& call) {
  std::string why;
  const int id = findControl(call, why);
  return id < 0 ? error(why) : ok(describeControl(*call.form(), id));
}

std::string timer(Call& call) {
  shell::Screen* screen = call.session.program().screen();
  if (screen == nullptr) return error("the program has ended");
  const int id = call.words.size() == 1 ? screen->timers().find(call.words[0]) : -1;
  if (id < 0) return error("no such timer");
  return ok((screen->timers().enabled(id) ? "on " : "off ") +
            std::to_string(screen->timers().interval(id)));
}

std::string box(Call& call) {
  return ok(describeBox(call.desk().box()));
}

std::string sounds(Call& call) {
  return ok(describeSounds(call.session.media().take()));
}

std::string top(Call& call) {
  platform::Point point;
  if (!screenPoint(call.words, point)) return error(kWantsPoint);
  if (call.form() == nullptr) return error("the program has ended");
  const int id = call.desk().topmost(point);
  return ok(id < 0 ? "none" : controlName(*call.form(), id));
}

std::string writePicture(Call& call, const platform::Surface& surface) {
  std::string why;
  if (call.rest.empty()) return error("takes a file name");
  if (!platform::writePng(std::string(call.rest), surface, why)) return error(why);
  return ok();
}

std::string shot(Call& call) {
  call.session.program().paint();
  return writePicture(call, call.session.program().framebuffer());
}

std::string surface(Call& call) {
  shell::Screen* screen = call.session.program().screen();
  if (screen == nullptr || screen->canvas() == nullptr) return error("no game is open");
  return writePicture(call, screen->canvas()->surface());
}

// --- steering ---

std::string set(Call& call) {
  std::vector<int> at;
  if (call.words.size() < 2) return error("takes a name and a value");
  const auto value = number<double>(call.words.back());
  if (!value) return error("the value is no number");
  if (!indices(std::span(call.words).subspan(1, call.words.size() - 2), at)) {
    return error("an index is no number");
  }
  std::string why;
  return setValue(call.state(), call.words[0], at, *value, why) ? ok() : error(why);
}

std::string feed(Call& call, platform::Random& random) {
  std::vector<double> draws;
  for (const std::string_view word : call.words) {
    const auto u = number<double>(word);
    if (!u || *u < 0 || *u >= 1) return error("takes draws of at least 0 and below 1");
    draws.push_back(*u);
  }
  if (draws.empty()) return error("takes draws of at least 0 and below 1");
  for (const double u : draws) random.feed(u);
  return ok();
}

std::string random(Call& call) {
  return feed(call, call.session.random());
}
std::string walkerRandom(Call& call) {
  return feed(call, call.session.walkerRandom());
}

std::string seed(Call& call) {
  const auto value = call.words.size() == 1 ? number<std::uint64_t>(call.words[0]) : std::nullopt;
  if (!value) return error("takes a whole number");
  call.session.random().seed(*value);
  call.session.walkerRandom().seed(~*value);
  return ok();
}

std::string quit(Call&) {
  return ok();
}

struct Command {
  std::string_view name;
  std::string (*run)(Call&);
};
constexpr Command kCommands[] = {
    {"advance", advance}, {"pointer", pointer},
    {"press", press},     {"release", release},
    {"click", click},     {"hover", hover},
    {"choose", choose},   {"type", type},
    {"key", key},         {"screen", screen},
    {"get", get},         {"grid", grid},
    {"control", control}, {"timer", timer},
    {"box", box},         {"sounds", sounds},
    {"top", top},         {"shot", shot},
    {"surface", surface}, {"set", set},
    {"random", random},   {"walkerrandom", walkerRandom},
    {"seed", seed},       {"quit", quit},
};

}  // namespace

bool isCommand(std::string_view line) {
  const std::size_t first = line.find_first_not_of(' ');
  return first != std::string_view::npos && line[first] != '#';
}

std::string run(Session& session, std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  const std::size_t end = std::min(line.find(' '), line.size());
  const std::string_view name = line.substr(0, end);
  const std::string_view rest = end < line.size() ? line.substr(end + 1) : std::string_view{};
  for (const Command& command : kCommands) {
    if (command.name != name) continue;
    Call call{session, split(rest), rest};
    return command.run(call);
  }
  return error("no such command");
}

}  // namespace driver
