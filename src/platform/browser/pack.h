// Packs: the pictures and letters of the game, in a form of their own. A browser may falsify what it
// decodes, and what it decodes is larger.
//
// A pack is a row of entries, all numbers little-endian:
//   name      one byte of length, then the bytes: the path that the game asks for
//   kind      one byte: 3 or 4 for a picture of so many bytes a pixel, 1 for letters
//   picture   width and height of two bytes each, length of four bytes, then the pixels as picture_code.h
//             codes them
//   letters   number of letters, two bytes; then for each: height and scale of one byte each, code of four
//             bytes, advance, left, top, width and rows of one byte each (left and top with a sign), and
//             the coverage of each pixel
// The tool that writes packs is tools/bake.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "platform/browser/handover.h"
#include "platform/geometry.h"
#include "platform/glyphs.h"

namespace platform {

/// Takes a pack over. False when it is damaged; nothing of it is then kept.
bool addPack(Handed bytes);

struct PackedPicture {
  Size size{};
  int channels = 0;                       // 3 or 4
  std::span<const std::uint8_t> coded{};  // as picture_code.h codes it, for good
};
/// Null where there is no picture of that path.
const PackedPicture* findPicture(const std::string& path);

/// The letter `code` of the given height and scale. False where there is none.
bool packedLetter(char32_t code, int height, int scale, Glyph& into);

}  // namespace platform
