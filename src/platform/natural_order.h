// The order in which people look for names: letters without regard to capitals and accents, numbers by
// their value.
#pragma once

#include <string_view>

namespace platform {

/// Whether one name stands before another. Names that differ at all have one order.
bool comesBefore(std::string_view a, std::string_view b);

}  // namespace platform
