// The driver as a WebAssembly module, so that its answers and shots can be compared with those of the
// native one. tests/browser/driver.mjs gives it the command line's manners.
#include <memory>
#include <string>

#include "driver/commands.h"
#include "platform/browser/handover.h"
#include "platform/browser/memory_files.h"

using platform::Handed;

namespace {

std::unique_ptr<driver::Session> session;
std::string answer;

}  // namespace

/// Starts the program. Returns what is wrong, empty when nothing is; text ends with a zero byte.
VELLMORAN_EXPORT("start") const char* start() {
  answer.clear();
  const auto assets = driver::Session::loadAssets("data", answer);
  if (assets != nullptr) {
    session = driver::Session::start(platform::kBrowserFolder, assets, answer);
  }
  return answer.c_str();
}

/// The answer to one command; empty for a line that holds none.
VELLMORAN_EXPORT("run") const char* run(char* bytes, int size) {
  const Handed line(bytes, size);
  answer = driver::isCommand(line.view()) ? driver::run(*session, line.view()) : "";
  return answer.c_str();
}
