// What the operating system reports, in plain words that are the same in every locale.
#pragma once

#include <string>

namespace platform {

/// The meaning of an error number (`errno`), phrased to follow a file's name and a colon.
std::string systemError(int number);

}  // namespace platform
