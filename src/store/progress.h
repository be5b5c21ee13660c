// "config.dat": how far the campaign has come, and which puzzles are solved.
#pragma once

#include <string>

#include "core/grid.h"

namespace store {

struct Progress {
  double reachedMission = 1;  // 1..11
  double reservedNumber = 0;  // carried unchanged
  core::Row<double, 1, 10> puzzleDone;
};

/// Name of the file in the program's folder.
inline constexpr const char* kProgressFile = "config.dat";
/// Name of the hand-over file of mission 2..10.
std::string handOverFile(int mission);

/// Reads "config.dat" in `folder`. False, with the file's name and what is wrong in `error`, when it is
/// missing or damaged.
bool readProgress(const std::string& folder, Progress& into, std::string& error);
bool writeProgress(const std::string& folder, const Progress& progress, std::string& error);

/// For a start: makes the file where there is none; sets a damaged one aside under another name and
/// makes a new one, with a notice of what was found and where it went in `notice` (empty when all is
/// well). False when no file could be made, with the reason in `notice`.
bool prepareProgress(const std::string& folder, std::string& notice);

}  // namespace store
