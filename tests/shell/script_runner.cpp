#include "shell/script_runner.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>
#include <vector>

#include "driver/commands.h"
#include "map/geometry.h"
#include "play/game_controls.h"

namespace script {

namespace {

std::shared_ptr<shell::Assets> sharedAssets() {
  static std::shared_ptr<shell::Assets> assets = [] {
    std::string error;
    auto loaded = driver::Session::loadAssets(VELLMORAN_BUILD_DIR "/data", error);
    if (loaded == nullptr) ADD_FAILURE() << error;
    return loaded;
  }();
  return assets;
}

/// Puts pixels in the place of cells: "press @15,15" becomes "press 400 300".
std::string withPixels(driver::Session& session, std::string command) {
  for (std::size_t at = command.find('@'); at != std::string::npos; at = command.find('@')) {
    int x = 0;
    int y = 0;
    int length = 0;
    if (std::sscanf(command.c_str() + at, "@%d,%d%n", &x, &y, &length) != 2) break;
    const platform::Rect place =
        session.program().screen()->form().onScreen(play::game_control::picScroll);
    const platform::Point centre = map::cellCentre(x, y);
    const std::string pixel =
        std::to_string(centre.x + place.left) + " " + std::to_string(centre.y + place.top);
    command.replace(at, static_cast<std::size_t>(length), pixel);
  }
  return command;
}

}  // namespace

Play::Play() : before_(std::filesystem::current_path()) {
  char name[] = "/tmp/vellmoran-play-XXXXXX";
  folder_ = mkdtemp(name);
  restart();
}

Play::~Play() {
  session_.reset();
  std::filesystem::current_path(before_);
  std::filesystem::remove_all(folder_);
}

void Play::restart() {
  session_.reset();
  std::string error;
  session_ = driver::Session::start(folder_, sharedAssets(), error);
  if (session_ == nullptr) {
    ADD_FAILURE() << error;
    return;
  }
  driver::run(*session_, "seed 1");
}

std::string Play::operator()(const std::string& command) {
  return driver::run(*session_, withPixels(*session_, command));
}

void Play::run(const std::string& commands) {
  std::istringstream lines(commands);
  for (std::string line; std::getline(lines, line);) {
    if (!driver::isCommand(line)) continue;
    const std::string answer = (*this)(line);
    EXPECT_TRUE(answer.starts_with("ok")) << line << ": " << answer;
  }
}

std::string Play::file(const std::string& name) const {
  std::ifstream in(folder_ + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void Play::write(const std::string& name, const std::string& text) const {
  std::ofstream(folder_ + "/" + name, std::ios::binary) << text;
}

namespace {

/// Scenes that many scripts contain; $ is what follows the word.
struct Scene {
  std::string_view word;
  std::vector<std::string> commands;
};
const std::vector<Scene>& scenes() {
  static const std::vector<Scene> table{
      {"open-play", {"click mainnew", "click stopen", "click opengo", "advance 500"}},
      {"puzzle", {"click mainnew", "click stpuzzle", "click Label20 $", "advance 500"}},
      {"save", {"click gmmenu", "click savegame", "click txtsavename", "type $", "click cmdsave"}},
      {"load",
       {"click gmmenu", "click ldgame", "choose File1 $.sav", "click cmdload", "advance 500"}},
  };
  return table;
}

/// The driver's commands for one line of a script.
std::vector<std::string> commandsOf(const std::string& line) {
  const std::size_t blank = std::min(line.find(' '), line.size());
  const std::string rest = line.substr(std::min(blank + 1, line.size()));
  std::vector<std::string> commands;
  for (const Scene& scene : scenes()) {
    if (line.compare(0, blank, scene.word) != 0) continue;
    for (std::string command : scene.commands) {
      if (command.find('$') != std::string::npos) command.replace(command.find('$'), 1, rest);
      commands.push_back(command);
    }
    return commands;
  }
  if (line.starts_with("press @")) {
    std::istringstream cells(rest);
    for (std::string cell; cells >> cell;) commands.push_back("press " + cell);
    return commands;
  }
  return {line};
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

/// Cuts fields at blanks outside quotation marks.
std::vector<std::string> fieldsOf(const std::string& text) {
  std::vector<std::string> fields(1);
  bool quoted = false;
  for (const char c : text) {
    if (c == '"' && !fields.back().ends_with('\\')) quoted = !quoted;
    if (c == ' ' && !quoted) {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

void expectAnswer(const std::string& answer, const std::string& expected,
                  const std::string& where) {
  if (expected.starts_with('~')) {
    EXPECT_NE(answer.find(expected.substr(1)), std::string::npos) << where << "\n  " << answer;
  } else if (answer.starts_with("ok {")) {
    for (const std::string& field : fieldsOf(expected)) {
      EXPECT_TRUE(hasField(answer, field)) << where << "\n  " << answer << "\n  has no " << field;
    }
  } else {
    const bool same = answer == expected || answer == "ok " + expected ||
                      answer.starts_with("ok " + expected + " ");
    EXPECT_TRUE(same) << where << "\n  " << answer << "\n  is not " << expected;
  }
}

/// Checks a line "#file NAME TEXT".
void expectFile(const Play& play, const std::string& line, const std::string& where) {
  std::istringstream words(line);
  std::string word, name, begin;
  words >> word >> name;
  std::getline(words >> std::ws, begin);
  const std::string text = play.file(name);
  EXPECT_TRUE(text.starts_with(begin)) << where << "\n  " << text;
}

}  // namespace

void playFile(const std::string& path) {
  std::vector<std::string> lines;
  std::ifstream in(path);
  for (std::string line; std::getline(in, line);) lines.push_back(line);

  Play play;
  bool wrote = false;
  for (const std::string& line : lines) {
    if (!line.starts_with("#write ")) continue;
    const std::size_t end = line.find(' ', 7);
    play.write(line.substr(7, end - 7), line.substr(end + 1) + "\r\n");
    wrote = true;
  }
  if (wrote) play.restart();

  std::string answer;
  for (std::size_t n = 0; n < lines.size(); ++n) {
    const std::string& line = lines[n];
    const std::string where = path + ":" + std::to_string(n + 1) + ": " + line;
    if (line.starts_with("#= ")) {
      EXPECT_EQ(answer, line.substr(3)) << where;
    } else if (line.starts_with("#file ")) {
      expectFile(play, line, where);
    } else if (line.size() > 1 && line[0] == '#' && line[1] != ' ') {
      EXPECT_TRUE(line.starts_with("#write ")) << where << "\n  is no remark that is checked";
    } else if (driver::isCommand(line)) {
      const std::size_t arrow = line.find(" => ");
      for (const std::string& command : commandsOf(line.substr(0, arrow))) answer = play(command);
      if (arrow != std::string::npos) {
        expectAnswer(answer, line.substr(arrow + 4), where);
      } else {
        EXPECT_TRUE(answer.starts_with("ok")) << where << "\n  " << answer;
      }
    }
  }
}

}  // namespace script
