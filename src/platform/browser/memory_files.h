// The files of the program in the memory of the page. The page puts in what its store has kept before
// the program starts, and is given every file that is written, to keep it.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// The folder of saved games and progress.
inline constexpr const char* kBrowserFolder = "/saved games";

/// Puts a file there, or takes it away, without handing it to the page.
void putFile(const std::string& path, std::string_view bytes);
void removeFile(const std::string& path);

}  // namespace platform
