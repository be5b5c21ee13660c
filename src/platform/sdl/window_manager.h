// Whether somebody on the desktop grants wishes about windows.
#pragma once

namespace platform {

/// Whether a window manager runs on the X display. Without one (a bare X server, a kiosk) a request
/// for full screen is never answered, and waiting for the answer costs a tenth of a second.
bool windowManagerRuns();

}  // namespace platform
