// Colours as the screen shows them.
#pragma once

#include <cstdint>

namespace platform {

struct Color {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
  friend constexpr bool operator==(const Color&, const Color&) = default;
};

inline constexpr Color kBlack{0, 0, 0};
inline constexpr Color kWhite{255, 255, 255};
inline constexpr Color kRed{255, 0, 0};
inline constexpr Color kGreen{0, 255, 0};
inline constexpr Color kYellow{255, 255, 0};

}  // namespace platform
