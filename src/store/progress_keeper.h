// The player's progress while the program runs: what "config.dat" holds, or what could not be written
// there, which is kept until it can.
#pragma once

#include <optional>
#include <string>

#include "store/progress.h"

namespace store {

class ProgressKeeper {
 public:
  explicit ProgressKeeper(std::string folder) : folder_(std::move(folder)) {}

  /// The program's folder, where the hand-over files are too.
  const std::string& folder() const { return folder_; }

  /// The progress so far; first tries again to write what is kept. Where the file is missing or damaged
  /// the player starts afresh, with what a player should know of it in `notice` (empty when all is well).
  Progress read(std::string& notice);
  /// Writes the progress. Where that fails it is kept; false, with a message for the player.
  bool write(const Progress& progress, std::string& message);
  /// Tries again to write what is kept. False, with what is wrong, when that fails.
  bool writeKept(std::string& error);

 private:
  std::string folder_;
  std::optional<Progress> kept_;
};

}  // namespace store
