#include "map/picture_set.h"

#include "platform/png.h"

namespace map {

namespace {

using enum PictureFile::Kind;
using platform::Rect;
using platform::Size;

constexpr Size kFlat{64, 32};
constexpr Size kSide{63, 33};  // the flat side pieces of the apartment
constexpr Size kTall{64, 64};
constexpr Size kWalker{12, 17};
constexpr Size kWater{288, 144};

constexpr auto kFiles = std::to_array<PictureFile>({
    // clang-format off
    { 0, pair, kFlat},            // ground
    { 1, pair, kFlat},            // road along y
    { 2, pair, kFlat},            // road along x
    { 3, pair, kTall},            // apartment
    { 4, pair, kFlat},            // tent
    { 5, pair, kSide},
    { 6, pair, kSide},
    { 7, pair, kFlat},
    { 8, pair, kTall},            // market
    { 9, pair, kTall},
    {10, pair, kTall},
    {11, pair, kFlat},
    {12, pair, kTall},            // doctor
    {13, pair, kFlat},            // farm, first stage
    {14, pair, kTall},            // church
    {15, pair, kFlat},
    {16, pair, kFlat},            // access view: served
    {17, pair, kFlat},            // access view: not served
    {18, pair, kTall},
    {19, pair, kFlat},            // house
    {20, pair, kFlat},            // void
    {22, tile, kWalker},          // walker, direction 0
    {22, mask, kWater},           // water with a brown patch
    {23, tile, kWalker},
    {24, tile, kWalker},
    {25, pair, kTall},            // school
    {26, pair, kTall},
    {27, pair, kTall},
    {28, pair, kFlat},            // ground, second variant
    {29, pair, kFlat},            // ground, third variant
    {30, pair, kFlat},
    {31, pair, kTall},
    {32, pair, kTall},
    {33, pair, kFlat},
    {34, pair, kFlat},
    {35, pair, kFlat},
    {36, tile, kWalker},          // walker, direction 2
    {37, pair, kFlat},            // road junction
    {38, tile, kWalker},          // walker, direction 1
    {39, tile, kWalker},
    {40, tile, kWalker},          // walker, direction 2
    {41, tile, kWalker},
    {42, tile, kWalker},          // walker, direction 3
    {43, tile, kWalker},
    {44, pair, kTall},            // tavern
    {45, pair, kTall},
    {46, pair, kTall},
    {47, pair, kFlat},
    {48, tile, {1000, 460}, core::Backdrop::river},
    {48, mask, {1800, 500}, core::Backdrop::countryside},
    {49, pair, kFlat},            // road corners
    {50, pair, kFlat},
    {51, pair, kFlat},
    {52, pair, kFlat},
    {53, tile, kWater},
    {53, mask, kWater},
    {54, pair, kFlat},            // farm, second stage
    {55, pair, kFlat},            // farm, third stage
    {56, both, kWalker},          // road patches
    {57, both, kWalker},
    {58, pair, kFlat},            // access view: any other building
    {59, pair, kTall},            // town walls
    {60, pair, kTall},
    {61, pair, kTall},
    {62, tile, {965, 293}, core::Backdrop::townWalls},
    // clang-format on
});

std::string pathOf(const PictureFile& file, const std::string& folder) {
  const char* below = file.kind == pair ? "/pair/" : file.kind == mask ? "/mask/" : "/tile/";
  std::string path = folder + below;
  path += static_cast<char>('0' + file.number / 10);
  path += static_cast<char>('0' + file.number % 10);
  return path + ".png";
}

std::string inWords(const Rect& size) {
  return std::to_string(size.width) + " x " + std::to_string(size.height);
}

/// The surface that the file fills, or the first of two.
platform::Surface& surfaceOf(PictureSet& set, const PictureFile& file) {
  return (file.kind == mask ? set.picMask : set.picTile)[file.number];
}

bool read(PictureSet& set, const PictureFile& file, const std::string& path, std::string& error) {
  const int n = file.number;
  switch (file.kind) {
    case pair:
      return platform::readPngPair(path, set.picTile[n], set.picMask[n], error, set.scale());
    case tile:
      return platform::readPng(path, set.picTile[n], error, set.scale());
    case mask:
      return platform::readPng(path, set.picMask[n], error, set.scale());
    case both:
      if (!platform::readPng(path, set.picTile[n], error, set.scale())) return false;
      set.picMask[n] = set.picTile[n].clone();
      return true;
  }
  return false;
}

}  // namespace

PictureSet::PictureSet(int scale) {
  picTile[kWorkingSlot] = platform::Surface(kWalker.width, kWalker.height, scale);
  picMask[kWorkingSlot] = platform::Surface(kWalker.width, kWalker.height, scale);
}

std::span<const PictureFile> pictureFiles() {
  return kFiles;
}

bool loadPicture(PictureSet& set, const PictureFile& file, const std::string& folder,
                 std::string& error) {
  const std::string path = pathOf(file, folder);
  if (!read(set, file, path, error)) return false;
  const int n = file.number;
  const platform::Surface& loaded = surfaceOf(set, file);
  const Rect wanted{0, 0, file.size.width, file.size.height};
  if (loaded.bounds() == wanted) {
    if (file.kind == pair) set.rows[n] = platform::pairRows(set.picTile[n], set.picMask[n]);
    return true;
  }
  error = path + ": is " + inWords(loaded.pixelBounds()) + " pixels, not " +
          inWords(loaded.inPixels(wanted));
  return false;
}

bool loadBackdrop(PictureSet& set, core::Backdrop backdrop, const std::string& folder,
                  std::string& error) {
  for (const PictureFile& file : kFiles) {
    if (file.backdrop == core::Backdrop::none) continue;
    platform::Surface& picture = surfaceOf(set, file);
    if (file.backdrop != backdrop) {
      picture = {};
    } else if (picture.empty() && !loadPicture(set, file, folder, error)) {
      return false;
    }
  }
  return true;
}

bool loadPictures(PictureSet& set, const std::string& folder, std::string& error) {
  for (const PictureFile& file : kFiles) {
    if (!loadPicture(set, file, folder, error)) return false;
  }
  return true;
}

}  // namespace map
