// The player's progress while the program runs: what "config.dat" holds, or what could not be written
// there, which is kept until it can.
#pragma once

#include <optional>
#include <string>

#include "store/progress.h"

namespace store {

class ProgressKeeper {
 public:
  /// `fault` is why the folder cannot be used at all, empty where it can. It is the first notice of
  /// `read`, and the only one about the folder.
  explicit ProgressKeeper(std::string folder, std::string fault = "")
      : folder_(std::move(folder)), fault_(std::move(fault)) {}

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
  std::string fault_;
  bool faultReported_ = false;
  std::optional<Progress> kept_;
};

}  // namespace store
