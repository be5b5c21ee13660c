// The driver's answers about controls, boxes and sounds.
#pragma once

#include <span>
#include <string>

#include "platform/desk.h"
#include "platform/form.h"

namespace driver {

/// Name of a control, with its index behind a blank where it has one.
std::string controlName(const platform::Form& form, int id);
/// One JSON object on one line.
std::string describeControl(const platform::Form& form, int id);
/// A message box as a JSON object, or null.
std::string describeBox(const platform::MessageBox* box);
/// A JSON array; the program's folder is written as F.
std::string describeSounds(std::span<const std::string> sounds);

}  // namespace driver
