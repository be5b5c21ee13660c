#include "store/progress_keeper.h"

#include <utility>

namespace store {

Progress ProgressKeeper::read(std::string& notice) {
  notice.clear();
  std::string error;
  if (!writeKept(error)) return *kept_;
  if (fault_.empty()) {
    prepareProgress(folder_, notice);
  } else if (!std::exchange(faultReported_, true)) {
    notice = fault_;
  }
  Progress progress;
  if (!readProgress(folder_, progress, error)) progress = {};
  return progress;
}

bool ProgressKeeper::write(const Progress& progress, std::string& message) {
  kept_ = progress;
  if (writeKept(message)) return true;
  message +=
      ".\nYour progress is kept in memory. Writing it is tried again at each return to the menu "
      "and at "
      "EXIT GAME.";
  return false;
}

bool ProgressKeeper::writeKept(std::string& error) {
  if (kept_ && writeProgress(folder_, *kept_, error)) kept_.reset();
  return !kept_;
}

}  // namespace store
