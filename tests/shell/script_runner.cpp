#include "shell/script_runner.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string_view>
#include <vector>

#include "driver/commands.h"
#include "map/geometry.h"

namespace script {

namespace {

std::shared_ptr<shell::Assets> sharedAssets(int scale) {
  static std::map<int, std::shared_ptr<shell::Assets>> assets;
  if (assets[scale] == nullptr) {
    std::string error;
    assets[scale] = driver::Session::loadAssets(VELLMORAN_BUILD_DIR "/data", error, scale);
    if (assets[scale] == nullptr) ADD_FAILURE() << error;
  }
  return assets[scale];
}

/// The keys of the palette, in their order.
constexpr std::string_view kTools[] = {"residence", "market",   "school", "tavern", "church",
                                       "doctor",    "demolish", "road",   "farm"};

/// Steps that many tests contain; $ is what follows the word.
const std::map<std::string, std::string> kScenes{
    {"open-play", "click mainnew, stopen, opengo; advance 500"},
    {"puzzle", "click mainnew, stpuzzle, Label20($); advance 500"},
    {"mission", "click mainnew, stcampaign, Label6($), Command14; advance 500"},
    {"menu", "click gmmenu, Command19"},
    {"save", "click gmmenu, savegame, txtsavename; key Ctrl+A; type $; click cmdsave"},
    {"load", "click gmmenu, ldgame; choose File1 $.sav; click cmdload; advance 500"},
    {"load-from-menu",
     "click mainload; advance 500; choose File1 $.sav; click cmdload; advance 500"},
    {"next-month", "set tickOfMonth=40; advance 1000"},
    // Every tool unlocked; a market and a residence at a road, 500 gold, saved as "town".
    {"saved-town",
     "open-play; set population=1000; advance 1000; click Command21; press @15,15 @15,16 @15,17; "
     "market @16,15; residence @13,15; set gold=500; save town"},
};

/// Cuts a text at a separator; a blank within quotation marks is none.
std::vector<std::string> cut(const std::string& text, std::string_view separator) {
  if (text.empty()) return {};
  std::vector<std::string> parts(1);
  bool quoted = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!quoted && std::string_view(text).substr(at).starts_with(separator)) {
      parts.emplace_back();
      at += separator.size() - 1;
      continue;
    }
    if (separator == " " && text[at] == '"' && !parts.back().ends_with('\\')) quoted = !quoted;
    parts.back() += text[at];
  }
  return parts;
}

/// As the driver takes it: "tileCode(15,16)=7" is "tileCode 15 16 7".
std::string plain(std::string text) {
  for (char& c : text) {
    if (c == '(' || c == ',' || c == '=') c = ' ';
  }
  std::erase(text, ')');
  return text;
}

/// Whether the object in an answer has the field, given as NAME=VALUE.
bool hasField(const std::string& answer, const std::string& field) {
  const std::size_t equals = field.find('=');
  const std::string wanted = "\"" + field.substr(0, equals) + "\":" + field.substr(equals + 1);
  const std::size_t at = answer.find(wanted);
  if (at == std::string::npos) return false;
  const char next = answer[at + wanted.size()];
  return next == ',' || next == '}';
}

/// Puts pixels in the place of cells: "press @15,15" becomes "press 400 300".
std::string withPixels(driver::Session& session, std::string command) {
  for (std::size_t at = command.find('@'); at != std::string::npos; at = command.find('@')) {
    int x = 0;
    int y = 0;
    int length = 0;
    if (std::sscanf(command.c_str() + at, "@%d,%d%n", &x, &y, &length) != 2) break;
    const platform::Rect place = session.program().screen()->form().onScreen(ui::picScroll);
    const platform::Point centre = map::cellCentre(x, y);
    const std::string pixel =
        std::to_string(centre.x + place.left) + " " + std::to_string(centre.y + place.top);
    command.replace(at, static_cast<std::size_t>(length), pixel);
  }
  return command;
}

}  // namespace

Play::Play(const std::string& script, int scale)
    : scenes_(kScenes), scale_(scale), before_(std::filesystem::current_path()) {
  char name[] = "/tmp/vellmoran-play-XXXXXX";
  folder_ = mkdtemp(name);
  restart();
  run(script);
}

Play::~Play() {
  session_.reset();
  std::filesystem::current_path(before_);
  std::filesystem::remove_all(folder_);
}

void Play::restart() {
  session_.reset();
  std::string error;
  session_ = driver::Session::start(folder_, sharedAssets(scale_), error);
  if (session_ == nullptr) {
    ADD_FAILURE() << error;
    return;
  }
  driver::run(*session_, "seed 1");
}

std::string Play::operator()(const std::string& command) {
  return driver::run(*session_, withPixels(*session_, command));
}

void Play::run(const std::string& script) {
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line);) runLine(line);
}

void Play::runLine(const std::string& line) {
  if (line.starts_with("# ") || line == "#") return;
  const auto rest = [&line](int from) {
    const std::size_t blank = line.find(' ', from);
    return std::pair{line.substr(from, blank - from), line.substr(blank + 1)};
  };
  if (line.starts_with("#write ")) {
    const auto [name, text] = rest(7);
    write(name, text + "\r\n");
    restart();
  } else if (line.starts_with("#file ")) {
    const auto [name, begin] = rest(6);
    EXPECT_TRUE(file(name).starts_with(begin)) << line << "\n  " << file(name);
  } else if (line.starts_with("#= ")) {
    EXPECT_EQ(answer_, line.substr(3));
  } else if (line.starts_with("let ")) {
    const auto [name, steps] = rest(4);
    scenes_[name] = steps.substr(2);
  } else if (line.starts_with('#')) {
    ADD_FAILURE() << line << " is no check";
  } else {
    for (const std::string& step : cut(line, "; ")) take(step);
  }
}

void Play::command(const std::string& command) {
  answer_ = (*this)(command);
  EXPECT_TRUE(answer_.starts_with("ok")) << command << "\n  " << answer_;
}

void Play::expect(const std::string& command, const std::string& expected) {
  answer_ = (*this)(command);
  if (expected.starts_with('~')) {
    EXPECT_NE(answer_.find(expected.substr(1)), std::string::npos) << command << "\n  " << answer_;
  } else if (answer_.starts_with("ok {")) {
    for (const std::string& field : cut(expected, " ")) {
      EXPECT_TRUE(hasField(answer_, field)) << command << "\n  " << answer_ << " has no " << field;
    }
  } else {
    const bool same = answer_ == "ok " + expected || answer_.starts_with("ok " + expected + " ");
    EXPECT_TRUE(same) << command << "\n  " << answer_ << " is not " << expected;
  }
}

void Play::take(const std::string& step) {
  const std::size_t blank = std::min(step.find(' '), step.size());
  const std::size_t arrow = step.find(" => ");
  const std::string word = step.substr(0, blank);
  const std::string rest = step.substr(std::min(blank + 1, step.size()));
  const std::size_t tool = static_cast<std::size_t>(std::ranges::find(kTools, word) - kTools);
  if (const auto scene = scenes_.find(word); scene != scenes_.end()) {
    std::string steps = scene->second;
    for (std::size_t at = 0; (at = steps.find('$', at)) != std::string::npos; at += rest.size()) {
      steps.replace(at, 1, rest);
    }
    run(steps);
  } else if (tool < std::size(kTools)) {
    command("click Command1 " + std::to_string(tool));
    for (const std::string& cell : cut(rest, " ")) command("press " + cell);
  } else if (step.starts_with("press @")) {
    for (const std::string& cell : cut(rest, " ")) command("press " + cell);
  } else if (word == "click" || word == "hover" || word == "key") {
    for (const std::string& name : cut(rest, ", ")) command(word + " " + plain(name));
  } else if (word == "set" && rest.find('=') != std::string::npos) {
    for (const std::string& field : cut(rest, " ")) command("set " + plain(field));
  } else if (word == "shown" || word == "hidden") {
    for (const std::string& name : cut(rest, " ")) {
      expect("control " + plain(name), word == "shown" ? "shown=true" : "shown=false");
    }
  } else if (word.ends_with(':')) {
    expect("control " + plain(word.substr(0, word.size() - 1)), rest);
  } else if (word.find('=') != std::string::npos) {
    for (const std::string& field : cut(step, " ")) {
      const std::size_t equals = field.find('=');
      expect((field.starts_with("Timer") ? "timer " : "get ") + plain(field.substr(0, equals)),
             field.substr(equals + 1));
    }
  } else if (arrow != std::string::npos) {
    expect(step.substr(0, arrow), step.substr(arrow + 4));
  } else {
    command(step);
  }
}

std::string Play::file(const std::string& name) const {
  std::ifstream in(folder_ + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void Play::write(const std::string& name, const std::string& text) const {
  std::ofstream(folder_ + "/" + name, std::ios::binary) << text;
}

void playFile(const std::string& path) {
  std::ifstream in(path);
  Play play;
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    SCOPED_TRACE(path + ":" + std::to_string(++number));
    play.run(line);
  }
}

}  // namespace script
