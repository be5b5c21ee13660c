// What is said of a file that cannot be used, wherever files are kept.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Sets `error` to the path and what is wrong with it; returns false, for the caller to return.
bool fail(std::string& error, const std::string& path, std::string_view what);

/// False, with the reason in `error`, for a path that a system would take for another one, or for none.
bool namesFile(const std::string& path, std::string& error);

}  // namespace platform
