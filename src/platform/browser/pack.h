// Packs: the pictures and letters of the game, decoded when it was built. A browser may falsify what it
// decodes, and the program need not carry two decoders.
//
// A pack is a row of entries, all numbers little-endian:
//   name      one byte of length, then the bytes: the path that the game asks for
//   kind      one byte: 3 or 4 for a picture of so many bytes a pixel, 1 for letters
//   picture   width and height of two bytes each, then the pixels less their prediction
//   letters   number of letters, two bytes; then for each: height and scale of one byte each, code of four
//             bytes, advance, left, top, width and rows of one byte each (left and top with a sign), and
//             the coverage of each pixel
// The tool that writes packs is tools/bake.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/geometry.h"
#include "platform/glyphs.h"

namespace platform {

/// Takes a pack over. False when it is damaged; nothing of it is then kept.
bool addPack(std::vector<std::uint8_t> bytes);

struct PackedPicture {
  Size size{};
  int channels = 0;                  // 3 or 4
  std::vector<std::uint8_t> pixels;  // rows without padding
};
/// Unpacks a picture and lets go of its packed form: a picture is read once. False when there is none.
bool takePicture(const std::string& path, PackedPicture& into);

/// The letter `code` of the given height and scale. False where there is none.
bool packedLetter(char32_t code, int height, int scale, Glyph& into);

}  // namespace platform
