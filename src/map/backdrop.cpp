// The backdrops of the missions: large pictures ORed onto the void around the play square. Black in
// them leaves the surface as it is, and colour shows true only on black; so painting one again
// changes nothing, and tall cells painted afterwards appear in front of it.
#include <array>
#include <span>

#include "core/missions.h"
#include "map/renderer.h"

namespace map {

namespace {

enum class Copy { tile, mask };

/// One blit. The boxes of most are a little larger than their pictures, which adds nothing.
struct Part {
  Copy copy;
  int number;
  platform::Rect box;
};

constexpr std::array<Part, 1> kCountryside{{
    {Copy::mask, 48, {73, 29, 1804, 504}},
}};
// The water comes as overlapping diamonds that step down to the left; the fourth has a brown patch.
constexpr std::array<Part, 8> kRiver{{
    {Copy::tile, 48, {983, 67, 1004, 464}},
    {Copy::mask, 22, {455, 202, 290, 146}},
    {Copy::tile, 53, {821, 19, 290, 146}},
    {Copy::mask, 53, {699, 80, 290, 146}},
    {Copy::mask, 53, {577, 141, 290, 146}},
    {Copy::mask, 53, {333, 263, 290, 146}},
    {Copy::mask, 53, {211, 324, 290, 146}},
    {Copy::mask, 53, {89, 385, 290, 146}},
}};
constexpr std::array<Part, 1> kTownWalls{{
    {Copy::tile, 62, {508, 254, 965, 293}},
}};

core::Backdrop backdropOf(const Stage& stage) {
  const core::Mission* mission = core::missionOf(stage.values.gMission);
  return mission == nullptr ? core::Backdrop::none : mission->backdrop;
}

std::span<const Part> partsOf(core::Backdrop backdrop) {
  switch (backdrop) {
    case core::Backdrop::countryside:
      return kCountryside;
    case core::Backdrop::river:
      return kRiver;
    case core::Backdrop::townWalls:
      return kTownWalls;
    case core::Backdrop::none:
      break;
  }
  return {};
}

}  // namespace

void paintBackdrop(Stage& stage) {
  for (const Part& part : partsOf(backdropOf(stage))) {
    const auto& pictures =
        part.copy == Copy::tile ? stage.pictures.picTile : stage.pictures.picMask;
    stage.canvas.bitBlt(part.box.left, part.box.top, part.box.width, part.box.height,
                        pictures[part.number], platform::SRCPAINT);
  }
  // Only the countryside counts as drawing load.
  if (backdropOf(stage) == core::Backdrop::countryside) ++stage.game.blitCount;
}

}  // namespace map
