// Text broken into lines by counting characters, for boxes of the window system, whose font is not
// ours and which break nothing by themselves.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Breaks every line of UTF-8 text that is longer than `columns` characters: at the last blank that
/// fits, which goes, and where there is none behind the last character that fits.
std::string wrapColumns(std::string_view text, int columns);

}  // namespace platform
