// The four cues, by what they mean.
#pragma once

namespace sound {

/// The number of a cue's file.
enum Cue { kClick = 1, kTool = 2, kBuild = 3, kDemolish = 4 };

}  // namespace sound
