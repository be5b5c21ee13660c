// The driver's commands: one line in, one line out.
#pragma once

#include <string>
#include <string_view>

#include "driver/session.h"

namespace driver {

/// Runs one command. The answer is "ok", "ok VALUE" or "error WHY", without a line end.
std::string run(Session& session, std::string_view line);

/// Whether the line is a command at all: not blank, no remark.
bool isCommand(std::string_view line);

}  // namespace driver
