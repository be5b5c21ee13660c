// The pictures that keys, frames and sheets of any size are put together from.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "platform/surface.h"

namespace platform {

enum class Look : std::uint8_t {
  key,      // enamel, to be pressed
  keyLit,   // under the pointer, for yellow letters
  keyHeld,  // stays down: the tool in hand
  keyDown,  // pressed, for yellow letters
  rim,      // of a key whose face is a plain colour
  rimLit,
  frame,  // around a panel
  inlay,  // around a field in a panel
  sheet,  // parchment, to be read
};
inline constexpr int kLooks = 9;

/// How a picture is put together: its corners are copied, its edges and its middle repeated.
struct LookDesign {
  const char* file;
  int left, top, right, bottom;  // how far its edges reach inwards
  bool hollow;                   // shows what is behind its middle
  bool shaded;                   // its rows are spread over the height, not repeated
  int rim;                       // of a hollow one: the width that it covers along each side
};
const LookDesign& lookDesign(Look look);

class Skin {
 public:
  /// Loads all pictures from `folder`, drawn at a scale. False, with the file's name and what is wrong
  /// in `error`.
  bool load(const std::string& folder, std::string& error, int scale);
  const Surface& operator[](Look look) const { return pictures_[static_cast<std::size_t>(look)]; }
  Surface& operator[](Look look) { return pictures_[static_cast<std::size_t>(look)]; }

 private:
  std::array<Surface, kLooks> pictures_;
};

}  // namespace platform
