// The program's own folder, and the folder for its files.
#pragma once

#include <string>

namespace platform {

/// Folder of the running executable, without a slash at its end; empty when the system does not
/// provide it.
std::string executableFolder();

/// The folder that games and progress are kept in, whole and writable: the executable's own where
/// `data` is beside it and files can be made in it, else `vellmoran` in the user's data folder
/// ($XDG_DATA_HOME, or ~/.local/share), which is made on first use and is for its user alone. That
/// a folder of programs can be written, as by root, is no reason to put a player's files there.
/// False, with what is wrong in `error`.
bool findProgramFolder(std::string& folder, std::string& error);

/// Makes a folder the working folder. False, with what is wrong in `error`.
bool enterFolder(const std::string& folder, std::string& error);
/// The full name of the working folder; empty when it cannot be found out.
std::string workingFolder();

}  // namespace platform
