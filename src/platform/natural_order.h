// The order in which people look for names: letters without regard to capitals and accents, numbers by
// their value.
#pragma once

#include <string_view>

namespace platform {

/// Whether one name sorts before another: a total order on names that differ.
bool comesBefore(std::string_view a, std::string_view b);

}  // namespace platform
