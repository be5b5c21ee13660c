// A message with an OK button where no screen of the program is open to show it.
#pragma once

#include <string>
#include <string_view>

namespace platform {

class SdlDisplay;

/// Shows a message in the open window, in the look of the game's own boxes, and returns when it was
/// read. False when there is no font to show it with.
bool showMessage(SdlDisplay& display, const std::string& fontPath, std::string_view title,
                 std::string_view text);

}  // namespace platform
