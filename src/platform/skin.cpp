#include "platform/skin.h"

#include "platform/png.h"

namespace platform {

namespace {

// clang-format off
constexpr std::array<LookDesign, kLooks> kDesigns{{
    // file    left top right bottom hollow shaded rim
    {"key",      6,  8,  6,  8, false, true,  0},
    {"keylit",   6,  8,  6,  8, false, true,  0},
    {"keyheld",  6,  8,  6,  8, false, true,  0},
    {"keydown",  6,  8,  6,  8, false, true,  0},
    {"rim",      4,  4,  4,  4, true,  false, 3},
    {"rimlit",   4,  4,  4,  4, true,  false, 3},
    {"frame",   14, 14, 14, 14, true,  false, 4},
    {"inlay",    2,  2,  2,  2, true,  false, 2},
    {"sheet",    6,  6,  6,  6, false, false, 0},
}};
// clang-format on

}  // namespace

const LookDesign& lookDesign(Look look) {
  return kDesigns[static_cast<std::size_t>(look)];
}

bool Skin::load(const std::string& folder, std::string& error, int scale) {
  for (std::size_t i = 0; i < kDesigns.size(); ++i) {
    const LookDesign& design = kDesigns[i];
    const std::string path = folder + "/" + design.file + ".png";
    if (!readPng(path, pictures_[i], error, scale)) return false;
    if (pictures_[i].width() <= design.left + design.right ||
        pictures_[i].height() <= design.top + design.bottom) {
      error = path + ": the picture is too small to be cut in nine";
      return false;
    }
  }
  return true;
}

}  // namespace platform
