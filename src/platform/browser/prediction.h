// Pixels less what their neighbours predict: small numbers, of which zip makes a third less.
//
// Red and blue are taken less green, then every byte less the median of its left neighbour, its upper
// neighbour, and their sum less the neighbour between them.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/geometry.h"

namespace platform {

/// In place; `pixels` holds rows of `channels` (3 or 4) bytes a pixel without padding.
void predict(std::vector<std::uint8_t>& pixels, Size size, int channels);
/// Undoes `predict`.
void restore(std::vector<std::uint8_t>& pixels, Size size, int channels);

}  // namespace platform
