#include "shell/script_runner.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/game_controls.h"
#include "driver/commands.h"

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
    const platform::Rect map =
        session.program().screen()->form().onScreen(core::game_control::picScroll);
    const std::string pixel = std::to_string(32 * (x - y) + 992 + map.left) + " " +
                              std::to_string(16 * (x + y) + 48 + map.top);
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
  std::string where;
  for (std::size_t n = 0; n < lines.size(); ++n) {
    const std::string& line = lines[n];
    const std::string rest = line.substr(std::min<std::size_t>(line.find(' ') + 1, line.size()));
    if (driver::isCommand(line)) {
      answer = play(line);
      where = path + ":" + std::to_string(n + 1) + ": " + line;
      const bool expects = n + 1 < lines.size() && lines[n + 1].starts_with("#= ");
      EXPECT_TRUE(expects || answer.starts_with("ok")) << where << "\n  " << answer;
    } else if (line.starts_with("#= ")) {
      EXPECT_EQ(answer, rest) << where;
    } else if (line.starts_with("#~ ")) {
      EXPECT_TRUE(answer.find(rest) != std::string::npos)
          << where << "\n  " << answer << " lacks " << rest;
    } else if (line.starts_with("#file ")) {
      const std::size_t end = rest.find(' ');
      const std::string text = play.file(rest.substr(0, end));
      EXPECT_TRUE(text.starts_with(rest.substr(end + 1)))
          << where << "\n  " << line << ": " << text;
    }
  }
}

}  // namespace script
