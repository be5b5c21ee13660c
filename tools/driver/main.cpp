// vellmoran-driver FOLDER [--data DIR] [--scale 1|2] < script: the whole program without a window, driven by commands
// on standard input. One answer a command; exit status 1 if any command failed, 2 if the program could
// not start.
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

#include "driver/commands.h"
#include "platform/program_folder.h"

int main(int argc, char** argv) {
  std::string folder;
  std::string data = platform::executableFolder() + "/data";
  int scale = 1;
  bool usable = true;
  for (int n = 1; n < argc; ++n) {
    const std::string argument = argv[n];
    if (argument == "--data" && n + 1 < argc) {
      data = argv[++n];
    } else if (argument == "--scale" && n + 1 < argc) {
      scale = std::atoi(argv[++n]);
      usable = usable && (scale == 1 || scale == 2);
    } else if (folder.empty() && !argument.starts_with("--")) {
      folder = argument;
    } else {
      usable = false;
    }
  }
  if (folder.empty() || !usable) {
    std::fprintf(stderr, "usage: vellmoran-driver FOLDER [--data DIR] [--scale 1|2] < script\n");
    return 2;
  }
  std::string error;
  const auto assets = driver::Session::loadAssets(data, error, scale);
  const auto session = assets ? driver::Session::start(folder, assets, error) : nullptr;
  if (session == nullptr) {
    std::fprintf(stderr, "vellmoran-driver: %s\n", error.c_str());
    return 2;
  }
  bool failed = false;
  std::string line;
  while (std::getline(std::cin, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!driver::isCommand(line)) continue;
    const std::string answer = driver::run(*session, line);
    std::cout << answer << std::endl;
    if (answer.starts_with("error")) failed = true;
    if (line == "quit") break;
  }
  return failed ? 1 : 0;
}
