// The pictures of the map by number.
//
// picTile(n) is picture n on pure white, picMask(n) the same picture on pure black; SRCAND of the
// first and SRCPAINT of the second draw it with its background transparent. At 22 and 48 the two
// arrays hold different pictures; picture 21 is the working slot of the walkers.
#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "core/missions.h"
#include "platform/surface.h"

namespace map {

inline constexpr int kPictures = 63;  // numbers 0 .. 62
inline constexpr int kWorkingSlot = 21;

struct PictureSet {
  std::array<platform::Surface, kPictures> picTile;
  std::array<platform::Surface, kPictures> picMask;
  std::array<std::vector<platform::PairRow>, kPictures> rows;  // of the pairs that came from a file

  /// An empty set for surfaces of one scale.
  explicit PictureSet(int scale = 1);
  int scale() const { return picTile[kWorkingSlot].scale(); }
};

/// Path of a picture's file below the folder of the map pictures, and which of the two arrays it
/// fills.
struct PictureFile {
  int number;
  enum class Kind {
    pair,  // "pair/NN.png": one picture with binary transparency fills both
    tile,  // "tile/NN.png": opaque, fills picTile
    mask,  // "mask/NN.png": opaque, fills picMask
    both,  // "tile/NN.png": opaque, fills both alike
  } kind;
  platform::Size size;  // in units
  core::Backdrop backdrop =
      core::Backdrop::none;  // the one that is painted with this picture alone
};

/// The files of the whole set.
std::span<const PictureFile> pictureFiles();

/// Loads one file of the set from `folder`, which holds pictures of the set's scale. False, with the name of the file and what is wrong in
/// `error`, when it is missing, damaged or of another size.
bool loadPicture(PictureSet& set, const PictureFile& file, const std::string& folder,
                 std::string& error);
/// Loads the pictures of a backdrop, and lets go of those of any other: they are a third of all
/// pixels, and a mission shows one at most. False as for `loadPicture`.
bool loadBackdrop(PictureSet& set, core::Backdrop backdrop, const std::string& folder,
                  std::string& error);
/// Loads the whole set with every backdrop, up to the first file that fails.
bool loadPictures(PictureSet& set, const std::string& folder, std::string& error);

}  // namespace map
